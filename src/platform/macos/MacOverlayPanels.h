#pragma once

#include "platform/OverlayPanel.h"

namespace barquell {

/// Borderless windows above everything, on every space, that clicks pass through.
class MacOverlayPanels final : public OverlayPanels {
public:
    std::unique_ptr<OverlayPanel> createPanel() override;
    QRectF mainScreenFrame() const override;
};

} // namespace barquell
