#pragma once

#include <QRect>
#include <QRectF>

namespace barquell {

/// Frames are computed with y growing upward and rounded once, when they reach the device.

/// Turned over within a height: from y upward to y downward, and back.
QRectF turnedOver(const QRectF &rect, double height = 0);

/// Rounded to whole points, each number bounded by what a widget can be.
QRect onDevice(const QRectF &rect);

/// A window that changes its size and keeps its top edge and the middle of its width, rounded down.
QRectF resizedAtTop(const QRectF &frame, const QSizeF &size);

/// A window that changes its size about its middle, rounded down.
QRectF resizedAboutCenter(const QRectF &frame, const QSizeF &size);

/// On the way from one frame to another; the fraction goes from 0 to 1.
QRectF between(const QRectF &from, const QRectF &to, double fraction);

} // namespace barquell
