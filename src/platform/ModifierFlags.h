#pragma once

#include <cstdint>

/// The 64-bit word of modifier keys that every event carries. The values are those of macOS: the generic bits
/// of CGEventFlags (CoreGraphics/CGEventTypes.h) and the device-dependent side bits
/// (IOKit/hidsystem/IOLLEvent.h). Every back end translates to them, so settings and decisions mean the same
/// everywhere.
namespace barquell {

using ModifierFlags = std::uint64_t;

inline constexpr ModifierFlags kFlagShift = 0x20000;    // kCGEventFlagMaskShift
inline constexpr ModifierFlags kFlagControl = 0x40000;  // kCGEventFlagMaskControl
inline constexpr ModifierFlags kFlagOption = 0x80000;   // kCGEventFlagMaskAlternate
inline constexpr ModifierFlags kFlagCommand = 0x100000; // kCGEventFlagMaskCommand
inline constexpr ModifierFlags kFlagFn = 0x800000;      // kCGEventFlagMaskSecondaryFn

inline constexpr ModifierFlags kFlagLeftControl = 0x1;     // NX_DEVICELCTLKEYMASK
inline constexpr ModifierFlags kFlagLeftShift = 0x2;       // NX_DEVICELSHIFTKEYMASK
inline constexpr ModifierFlags kFlagRightShift = 0x4;      // NX_DEVICERSHIFTKEYMASK
inline constexpr ModifierFlags kFlagLeftCommand = 0x8;     // NX_DEVICELCMDKEYMASK
inline constexpr ModifierFlags kFlagRightCommand = 0x10;   // NX_DEVICERCMDKEYMASK
inline constexpr ModifierFlags kFlagLeftOption = 0x20;     // NX_DEVICELALTKEYMASK
inline constexpr ModifierFlags kFlagRightOption = 0x40;    // NX_DEVICERALTKEYMASK
inline constexpr ModifierFlags kFlagRightControl = 0x2000; // NX_DEVICERCTLKEYMASK

} // namespace barquell
