#pragma once

#include "evdev/Contacts.h"
#include "platform/Event.h"

#include <array>
#include <span>

namespace barquell::evdev {

/// A finger in a frame. The position is a fraction of the bar's width and height, each from 0 to 1, counted
/// from the origin of the device's axes.
struct Touch {
    TouchPhases phase = 0; ///< exactly one
    std::int32_t trackingId = kNoContact;
    float x = 0;
    float y = 0;
};

/// What a bar reports at once: its fingers, those that have just left included.
class TouchFrame {
public:
    std::span<const Touch> touches() const { return std::span(_touches).first(_count); }
    int count(TouchPhases phases) const;

    void clear() { _count = 0; }
    void add(const Touch &touch) { _touches.at(_count++) = touch; }

private:
    // In one frame the contact of a slot can end and another begin.
    std::array<Touch, std::size_t{2} * kMaximumSlots> _touches{};
    std::size_t _count = 0;
};

} // namespace barquell::evdev
