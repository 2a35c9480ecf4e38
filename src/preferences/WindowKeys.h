#pragma once

#include "platform/ModifierFlags.h"

namespace barquell {

/// The modifiers that tell keys of a window apart; Caps Lock, Fn and the sides do not count.
inline constexpr ModifierFlags kWindowKeyFlags = kFlagShift | kFlagControl | kFlagOption | kFlagCommand;

} // namespace barquell
