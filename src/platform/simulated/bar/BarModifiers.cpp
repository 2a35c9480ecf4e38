#include "platform/simulated/bar/BarModifiers.h"

namespace barquell {

void BarModifiers::setFnHeld(bool held) {
    _fnHeld = held;
    keyboardChanged();
}

void BarModifiers::keyboardChanged() {
    const ModifierFlags flags = currentFlags();
    if (flags != _told) {
        _told = flags;
        ScriptedEvent event(EventType::FlagsChanged, flags);
        _taps.deliver(event);
    }
}

} // namespace barquell
