#pragma once

#include "evdev/DeviceDescription.h"

namespace barquell::tapd {

/// More slots uinput gives to no device (drivers/input/misc/uinput.c, uinput_validate_absinfo).
inline constexpr std::int32_t kCloneSlots = 100;

/// By its phys a clone is known from a bar.
inline constexpr const char *kClonePhys = "barquell/clone";

/// What the clone of a bar says of itself: all that the bar says, so that readers take it for the bar. Any
/// thread.
evdev::DeviceDescription cloneDescription(const evdev::DeviceDescription &bar);

} // namespace barquell::tapd
