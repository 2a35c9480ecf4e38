#pragma once

#include "evdev/Codes.h"
#include "evdev/DeviceKind.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace barquell::evdev {

inline constexpr std::int32_t kNoContact = -1;

/// What a slot of a multitouch device holds (kernel: Documentation/input/multi-touch-protocol.rst, type B).
/// The axes keep their values when the contact leaves, as they do in the kernel.
struct Slot {
    static constexpr std::uint16_t kFirstAxis = kAbsMtTouchMajor;
    static constexpr std::uint16_t kLastAxis = kAbsMtToolY;

    std::int32_t trackingId = kNoContact;
    std::array<std::int32_t, kLastAxis - kFirstAxis + 1>
        axes{}; ///< by ABS_MT_ code; the tracking id's is unused

    std::int32_t &axis(std::uint16_t code) { return axes.at(code - std::size_t{kFirstAxis}); }
    std::int32_t axis(std::uint16_t code) const { return axes.at(code - std::size_t{kFirstAxis}); }

    /// A contact that the device calls a palm is no touch: it counts as cancelled.
    bool isTouch() const { return trackingId >= 0 && axis(kAbsMtToolType) != kMtToolPalm; }

    bool operator==(const Slot &) const = default;
};

/// The slots of a device, up to the last one that was ever touched; those behind it are empty.
using Contacts = std::vector<Slot>;

/// The slot, also where it is one of the empty ones.
Slot slotAt(const Contacts &contacts, std::size_t index);

bool anyContact(const Contacts &contacts);

} // namespace barquell::evdev
