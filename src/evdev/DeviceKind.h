#pragma once

#include "evdev/DeviceDescription.h"

namespace barquell::evdev {

/// More slots than this no bar has: 11 on T2 Macs, 256 on M1 and M2 Macs
/// (drivers/input/touchscreen/apple_z2.c).
inline constexpr int kMaximumSlots = 256;

/// Does it go by the name of a Touch Bar's digitizer? Names seen: "Apple Inc. Touch Bar Display Touchpad" (T2
/// Macs), "MacBookPro17,1 Touch Bar", "Mac14,7 Touch Bar".
bool hasTouchBarName(const DeviceDescription &device);

/// Is this the digitizer of a Touch Bar? Known by its name, by what it can do, and by axes that can be true.
bool isTouchBar(const DeviceDescription &device);

/// Has it a key that modifierFlagsOf() knows?
bool hasModifierKey(const DeviceDescription &device);

/// Does it have modifier or media keys, so that it counts as a keyboard?
bool isKeyboard(const DeviceDescription &device);

} // namespace barquell::evdev
