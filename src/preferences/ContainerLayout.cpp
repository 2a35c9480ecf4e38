#include "preferences/ContainerLayout.h"

#include <cmath>

namespace barquell {

namespace {

double bottomEdge(const QRectF &bounds, double height, std::uint32_t mode) {
    switch (mode) {
    case ContainerLayoutCenter:
        return bounds.y() + std::ceil((bounds.height() - height) * 0.5);
    case ContainerLayoutTop:
        return bounds.y() + (bounds.height() - height);
    default:
        return bounds.y();
    }
}

} // namespace

QRectF placeContent(const QRectF &bounds, const QSizeF &size, std::uint32_t mode) {
    if (mode == ContainerLayoutFill) {
        return bounds;
    }
    const double x = bounds.x() + std::floor((bounds.width() - size.width()) * 0.5);
    return {QPointF(x, bottomEdge(bounds, size.height(), mode)), size};
}

} // namespace barquell
