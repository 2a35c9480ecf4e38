#pragma once

#include "platform/KeyEvents.h"

namespace barquell {

/// Keys of our own windows, read from the native event that Qt is delivering. Qt's exchange of Control and
/// Command does not show here.
class MacKeyEvents final : public KeyEvents {
public:
    std::optional<KeyEvent> keyEvent(const QKeyEvent &event, KeyMeanings meanings) const override;
    bool exchangesControlAndCommand() const override { return true; }
    void beep() override;
};

} // namespace barquell
