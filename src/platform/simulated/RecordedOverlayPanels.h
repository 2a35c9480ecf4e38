#pragma once

#include "platform/OverlayPanel.h"

#include <memory>
#include <string>
#include <vector>

namespace barquell {

/// Overlay panels that nobody sees: what they were told is kept. Fades run on the main run loop.
class RecordedOverlayPanels final : public OverlayPanels {
public:
    std::unique_ptr<OverlayPanel> createPanel() override;
    QRectF mainScreenFrame() const override { return screen; }

    QRectF screen{0, 0, 1440, 900};

    /// How the panel that was made last stands, or stood when it was destroyed.
    struct State {
        QWidget *content = nullptr; // compared, never followed
        QRectF frame;
        double opacity = 1;
        bool visible = false;
        bool fading = false;
    };
    State panel;

    /// The calls made on panels, in their order.
    std::vector<std::string> journal;

private:
    class Panel;
};

} // namespace barquell
