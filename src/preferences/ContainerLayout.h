#pragma once

#include <QRectF>

#include <cstdint>

namespace barquell {

/// Where a container places the one view that it shows. Any other number counts as Bottom.
enum ContainerLayoutMode : std::uint32_t {
    ContainerLayoutCenter = 0, ///< in its own size, in the middle
    ContainerLayoutBottom = 1, ///< in its own size, at the middle of the lower edge
    ContainerLayoutTop = 2,    ///< in its own size, at the middle of the upper edge
    ContainerLayoutFill = 3,   ///< over all of the container
};

/// The frame of a view of that size in a container with these bounds. y grows upward. The middle is rounded
/// down across and up along the height.
QRectF placeContent(const QRectF &bounds, const QSizeF &size, std::uint32_t mode);

} // namespace barquell
