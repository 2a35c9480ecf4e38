#pragma once

#include "evdev/InputEvent.h"

#include <array>
#include <span>

namespace barquell::tapd {

// A node is read by one thread.

/// Events of one wake-up, as many as are read at once.
using EventBatch = std::array<evdev::InputEvent, 64>;

struct ReadResult {
    std::span<const evdev::InputEvent> events; ///< in the batch
    bool isGone = false;                       ///< the device was unplugged
};

/// Forgets what waits to be read, but no more than a node can hold: a device that reports faster than it is
/// read would keep us for ever. Whether there was any.
bool forgetEvents(int node);

/// Reads from an evdev node that does not wait.
ReadResult readEvents(int node, EventBatch &batch);

} // namespace barquell::tapd
