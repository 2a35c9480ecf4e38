#include "platform/simulated/bar/BarTouches.h"

namespace barquell {

void BarTouches::frame(const std::vector<BarTouch> &touches) {
    for (const BarTouch &touch : touches) {
        _fingers.try_emplace(touch.finger, false);
    }
    const bool pass = passes(touches);
    for (const BarTouch &touch : touches) {
        if ((touch.phase & kTouching) == 0) {
            end(touch.finger);
        } else if (pass) {
            letThrough(touch);
        }
    }
}

bool BarTouches::passes(const std::vector<BarTouch> &touches) {
    ScriptedEvent event(EventType::Gesture, _modifiers.currentFlags());
    for (const BarTouch &touch : touches) {
        event.touch(touch.phase);
    }
    return _taps.deliver(event);
}

void BarTouches::letThrough(const BarTouch &touch) {
    bool &begun = _fingers.at(touch.finger);
    if (begun) {
        _controls.fingerMoved(touch.finger, touch.x);
        return;
    }
    begun = true;
    ++_passed;
    _controls.fingerDown(touch.finger, touch.x);
}

void BarTouches::end(int finger) {
    const auto entry = _fingers.extract(finger);
    _controls.fingerUp(finger);
    if (!entry.mapped()) {
        ++_heldBack;
    }
}

} // namespace barquell
