#pragma once

#include "evdev/CloneOutput.h"
#include "evdev/TouchReader.h"
#include "platform/simulated/ScriptedEventTaps.h"

#include <optional>
#include <vector>

namespace barquell::replay {

/// A bar whose frames are led through a tap and, where they pass, on to a clone. A finger that leaves the bar
/// in a frame that does not pass leaves the clone all the same.
class FilteredBar {
public:
    struct Frame {
        ScriptedEvent gesture;
        bool passed;
        const std::vector<evdev::InputEvent> &sent; ///< by the clone; valid until the next event
    };

    /// For a device that isTouchBar().
    explicit FilteredBar(const evdev::DeviceDescription &bar) : _reader(bar), _clone(bar) {}

    /// A result where the event completes a frame.
    std::optional<Frame> feed(const evdev::InputEvent &event, ModifierFlags heldModifiers,
                              ScriptedEventTaps &taps);

    /// What the fingers on the bar are, as of the last frame.
    const evdev::Contacts &contacts() const { return _reader.contacts(); }

private:
    evdev::TouchReader _reader;
    evdev::CloneOutput _clone;
};

} // namespace barquell::replay
