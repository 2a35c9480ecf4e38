#pragma once

#include "evdev/Contacts.h"
#include "evdev/DeviceDescription.h"
#include "evdev/InputEvent.h"

#include <bitset>
#include <optional>
#include <vector>

namespace barquell::evdev {

/// What a clone of a bar sends. Multitouch is a state and not a stream: frames that were swallowed leave
/// gaps, so for each frame that passes the clone sends the difference between what it has sent so far and
/// what the bar holds. BTN_TOUCH and the single-touch axes are derived from it as the kernel does
/// (drivers/input/input-mt.c, input_mt_report_pointer_emulation).
class CloneOutput {
public:
    explicit CloneOutput(const DeviceDescription &bar);

    /// Makes the clone hold these contacts. Returns what is to be sent, reports included; nothing where it
    /// holds them already. Where the contact of a slot has changed, its end and a report come before the new
    /// beginning. The result is valid until the next call, and no call allocates after the first few.
    const std::vector<InputEvent> &moveTo(const Contacts &contacts, std::int64_t time,
                                          std::optional<std::int32_t> timestamp = std::nullopt);

    /// Ends what is on the clone but no longer on the bar, for a frame that does not pass: cancelled where
    /// the clone knows palms, else lifted where it was last seen. The result is like that of moveTo().
    const std::vector<InputEvent> &endLifted(const Contacts &bar, std::int64_t time);

    /// What the clone holds.
    const Contacts &contacts() const { return _contacts; }

private:
    void appendMove(const Contacts &contacts, std::optional<std::int32_t> timestamp);
    void sendDifference(const Contacts &contacts);
    void sendSlot(std::int32_t index, const Slot &wanted);
    void sendAxis(std::int32_t index, std::uint16_t code, std::int32_t value);
    void sendPointerEmulation();
    void sendChanged(std::uint16_t type, std::uint16_t code, std::int32_t value, std::int32_t &sent);
    void send(std::uint16_t type, std::uint16_t code, std::int32_t value);

    std::bitset<kAbsMax + 1> _axes; // what the clone offers
    bool _hasTouchKey;
    Contacts _contacts;
    Contacts _ended; // for appendMove()
    Contacts _goal;  // for endLifted()
    std::int32_t _slot = 0;
    std::int32_t _touch = 0; // BTN_TOUCH, ABS_X and ABS_Y as sent
    std::int32_t _x = 0;
    std::int32_t _y = 0;
    std::int32_t _pressure = 0;
    std::int64_t _time = 0;
    std::vector<InputEvent> _events;
};

} // namespace barquell::evdev
