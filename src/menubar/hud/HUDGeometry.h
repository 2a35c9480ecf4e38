#pragma once

#include <QRectF>

namespace barquell {

/// The places of the HUD as the setting "HUDLocation" numbers them. Any other number is the centre, too, but
/// with the small view.
enum HUDLocation : int {
    HUDLocationCentre = 0,
    HUDLocationTopRight = 1,
    HUDLocationBottomRight = 2,
    HUDLocationTopLeft = 3,
    HUDLocationBottomLeft = 4,
};

bool hudUsesLargeView(int location);

/// Where the panel stands on a screen, in the screen's own coordinates with y growing upward: 10 points away
/// from a corner, or centred with its middle at 4/15 of the screen's height.
QRectF hudFrame(int location, const QRectF &screen, const QSizeF &size);

} // namespace barquell
