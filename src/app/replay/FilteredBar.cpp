#include "app/replay/FilteredBar.h"

namespace barquell::replay {

std::optional<FilteredBar::Frame> FilteredBar::feed(const evdev::InputEvent &event,
                                                    ModifierFlags heldModifiers, ScriptedEventTaps &taps) {
    if (!_reader.feed(event)) {
        return std::nullopt;
    }
    ScriptedEvent gesture(EventType::Gesture, heldModifiers);
    for (const evdev::Touch &touch : _reader.frame().touches()) {
        gesture.touch(touch.phase);
    }
    if (taps.deliver(gesture)) {
        return Frame{gesture, true, _clone.moveTo(_reader.contacts(), event.time, _reader.timestamp())};
    }
    return Frame{gesture, false, _clone.endLifted(_reader.contacts(), event.time)};
}

} // namespace barquell::replay
