#pragma once

#include <cstdint>

namespace barquell::evdev {

/// One event as an evdev node reports it (struct input_event of linux/input.h, with the time in one number).
struct InputEvent {
    std::int64_t time = 0; ///< microseconds since a start that the source defines
    std::uint16_t type = 0;
    std::uint16_t code = 0;
    std::int32_t value = 0;

    bool operator==(const InputEvent &) const = default;
};

static_assert(sizeof(InputEvent) == 16, "ten million of them are kept in memory");

} // namespace barquell::evdev
