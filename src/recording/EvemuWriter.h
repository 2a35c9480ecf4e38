#pragma once

#include "evdev/DeviceDescription.h"
#include "evdev/InputEvent.h"

#include <ostream>

namespace barquell::recording {

/// Writes the head of an evemu file, so that `evemu-device` and readEvemu() make the same device of it. What
/// a recording's name may not contain is written as readEvemu() would read it.
void writeEvemuHeader(std::ostream &out, const evdev::DeviceDescription &device);

/// Writes one event line. The format has no negative times.
void writeEvemuEvent(std::ostream &out, const evdev::InputEvent &event);

} // namespace barquell::recording
