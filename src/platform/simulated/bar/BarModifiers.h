#pragma once

#include "platform/ModifierState.h"
#include "platform/simulated/ScriptedEventTaps.h"

#include <functional>

namespace barquell {

/// The modifier keys of the simulated machine: those of the keyboard, and Fn, which few keyboards tell of and
/// which the bar's window has a button for.
class BarModifiers final : public ModifierState {
public:
    using Keyboard = std::function<ModifierFlags()>;

    BarModifiers(ScriptedEventTaps &taps, Keyboard keyboard) : _taps(taps), _keyboard(std::move(keyboard)) {}

    ModifierFlags currentFlags() const override { return _keyboard() | (_fnHeld ? kFlagFn : 0); }

    void setFnHeld(bool held);

    /// To be called when a modifier key of the keyboard may have gone down or up.
    void keyboardChanged();

private:
    ScriptedEventTaps &_taps;
    Keyboard _keyboard;
    bool _fnHeld = false;
    ModifierFlags _told = 0; // to the tap, by the last event
};

} // namespace barquell
