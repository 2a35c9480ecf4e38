#pragma once

#include "evdev/DeviceDescription.h"
#include "evdev/InputEvent.h"
#include "evdev/TouchFrame.h"

#include <optional>

namespace barquell::evdev {

/// Translates what a bar's node reports to frames of touches. It allocates nothing. Events that it does not
/// know and slots out of range change nothing; axes of a slot without a contact count once one begins.
class TouchReader {
public:
    /// For a device that isTouchBar().
    explicit TouchReader(const DeviceDescription &bar);

    /// True where the event completes a frame.
    bool feed(const InputEvent &event);

    /// Takes over what the device said it holds when it was asked, after events were lost, and completes a
    /// frame with it. `slot` is the device's current one.
    void resync(const Contacts &held, std::int32_t slot);

    /// The last complete frame.
    const TouchFrame &frame() const { return _frame; }

    /// What the device holds as of the last complete frame.
    const Contacts &contacts() const { return _contacts; }

    /// The device's time stamp of the last complete frame (MSC_TIMESTAMP, microseconds), where it gave one.
    std::optional<std::int32_t> timestamp() const { return _timestamp; }

private:
    struct Range {
        double minimum;
        double length;

        float fraction(std::int32_t value) const;
    };

    static Range rangeOf(const DeviceDescription &bar, std::uint16_t code);

    void feedAxis(const InputEvent &event);
    void completeFrame();
    void addTouches(const Slot &before, const Slot &now);
    Touch touch(const Slot &slot, TouchPhases phase) const;

    Range _x;
    Range _y;
    std::int32_t _slotCount;
    std::int32_t _slot = 0;
    bool _dropped = false; // the kernel's queue ran over; nothing is true until the next report
    Contacts _incoming;    // as the events since the last report leave it
    Contacts _contacts;
    TouchFrame _frame;
    std::optional<std::int32_t> _incomingTimestamp;
    std::optional<std::int32_t> _timestamp;
};

} // namespace barquell::evdev
