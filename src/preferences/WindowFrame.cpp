#include "preferences/WindowFrame.h"

#include <qwidget.h> // QWIDGETSIZE_MAX

#include <algorithm>
#include <cmath>

namespace barquell {

namespace {

int bounded(double value, double least) {
    return static_cast<int>(std::lround(std::clamp<double>(value, least, QWIDGETSIZE_MAX)));
}

double halfTheDifference(double before, double after) {
    return std::floor((before - after) * 0.5);
}

} // namespace

QRectF turnedOver(const QRectF &rect, double height) {
    return {rect.x(), height - (rect.y() + rect.height()), rect.width(), rect.height()};
}

QRect onDevice(const QRectF &rect) {
    return {bounded(rect.x(), -QWIDGETSIZE_MAX), bounded(rect.y(), -QWIDGETSIZE_MAX),
            bounded(rect.width(), 0), bounded(rect.height(), 0)};
}

QRectF resizedAtTop(const QRectF &frame, const QSizeF &size) {
    return {QPointF(frame.x() + halfTheDifference(frame.width(), size.width()),
                    frame.y() + (frame.height() - size.height())),
            size};
}

QRectF resizedAboutCenter(const QRectF &frame, const QSizeF &size) {
    return {QPointF(frame.x() + halfTheDifference(frame.width(), size.width()),
                    frame.y() + halfTheDifference(frame.height(), size.height())),
            size};
}

QRectF between(const QRectF &from, const QRectF &to, double fraction) {
    const auto mixed = [fraction](double a, double b) { return a + (b - a) * fraction; };
    return {mixed(from.x(), to.x()), mixed(from.y(), to.y()), mixed(from.width(), to.width()),
            mixed(from.height(), to.height())};
}

} // namespace barquell
