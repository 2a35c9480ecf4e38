#include "menubar/hud/HUDPlate.h"

#include <QPainter>

namespace barquell {

namespace {

constexpr double kPlateOpacity = 0.92; // enough for text on any background
constexpr double kEdgeOpacity = 0.15;  // tells the plate from a background of its own colour

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

} // namespace

HUDPlate::HUDPlate(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_NoSystemBackground);
}

void HUDPlate::setCornerRadius(double radius) {
    _cornerRadius = radius;
    update();
}

void HUDPlate::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(withOpacity(palette().color(QPalette::WindowText), kEdgeOpacity));
    painter.setBrush(withOpacity(palette().color(QPalette::Window), kPlateOpacity));
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5); // the middle of a line one point wide
    painter.drawRoundedRect(edge, _cornerRadius - 0.5, _cornerRadius - 0.5);
}

} // namespace barquell
