#pragma once

#include "evdev/DeviceDescription.h"
#include "platform/linux/tapd/core/Ports.h"

#include <string>

namespace barquell::tapd {

// Each asks the kernel and keeps nothing; any thread.

/// What a device says of itself; nothing where the node is none, or gone.
std::optional<evdev::DeviceDescription> describe(int node);

/// Where the device is connected, as its driver tells it.
std::string physOf(int node);

/// What all slots of a multitouch device hold now, and which slot is the current one.
std::optional<BarState> heldSlots(int node, const evdev::DeviceDescription &device);

/// All keys that are down, also those that a mask hides.
std::optional<std::bitset<evdev::kKeyMax + 1>> heldKeys(int node);

} // namespace barquell::tapd
