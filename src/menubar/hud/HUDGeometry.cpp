#include "menubar/hud/HUDGeometry.h"

namespace barquell {

namespace {

constexpr double kMargin = 10;
constexpr double kCentreHeight = 4.0 / 15.0; // of the screen's

/// y grows upward, so a rectangle's y() is its lower edge.
QPointF origin(int location, const QRectF &screen, const QSizeF &size) {
    const double left = screen.x() + kMargin;
    const double right = screen.x() + screen.width() - size.width() - kMargin;
    const double bottom = screen.y() + kMargin;
    const double top = screen.y() + screen.height() - size.height() - kMargin;
    switch (location) {
    case HUDLocationTopRight:
        return {right, top};
    case HUDLocationBottomRight:
        return {right, bottom};
    case HUDLocationTopLeft:
        return {left, top};
    case HUDLocationBottomLeft:
        return {left, bottom};
    default:
        return {screen.x() + (screen.width() - size.width()) * 0.5,
                screen.y() + screen.height() * kCentreHeight - size.height() * 0.5};
    }
}

} // namespace

bool hudUsesLargeView(int location) {
    return location == HUDLocationCentre;
}

QRectF hudFrame(int location, const QRectF &screen, const QSizeF &size) {
    return {origin(location, screen, size), size};
}

} // namespace barquell
