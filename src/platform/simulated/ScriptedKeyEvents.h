#pragma once

#include "platform/KeyEvents.h"

#include <deque>

namespace barquell {

/// Says of each key event of Qt's what the script has next; without one, of events that Qt made up from
/// names of keys (as tests send them), what a US keyboard would say.
class ScriptedKeyEvents final : public KeyEvents {
public:
    std::optional<KeyEvent> keyEvent(const QKeyEvent &event, KeyMeanings meanings) const override;
    bool exchangesControlAndCommand() const override { return exchanges; }
    void beep() override { ++beeps; }

    mutable std::deque<KeyEvent> script; ///< taken from the front, an answer an event
    int beeps = 0;
    bool exchanges = false; ///< the toolkit's Control is Command
};

} // namespace barquell
