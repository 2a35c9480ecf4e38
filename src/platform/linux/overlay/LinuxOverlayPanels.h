#pragma once

#include "platform/OverlayPanel.h"

namespace barquell {

/// Overlay panels on an X11 desktop, also through XWayland. Without a compositing manager the opacity of a
/// window has no effect: a panel that fades stays as it is until it is ordered out. Needs a QApplication.
class LinuxOverlayPanels final : public OverlayPanels {
public:
    std::unique_ptr<OverlayPanel> createPanel() override;

    /// The screen of the window with the focus, else that of the pointer, else the primary one.
    QRectF mainScreenFrame() const override;
};

/// Turns a rectangle over between y growing upward from the primary screen's lower edge and Qt's y growing
/// downward from its upper edge; the same in both directions.
QRectF turnedOver(const QRectF &rectangle, const QRectF &primaryScreen);

} // namespace barquell
