#pragma once

#include <cstdint>

/// The codes of the kernel's input protocol that Barquell knows, with the kernel's names and numbers
/// (linux/input-event-codes.h, linux/input.h). Kept here because recordings are replayed where there is no
/// such header, and named so that they stand beside its macros.
namespace barquell::evdev {

inline constexpr std::uint16_t kEvSyn = 0x00; // EV_SYN
inline constexpr std::uint16_t kEvKey = 0x01; // EV_KEY
inline constexpr std::uint16_t kEvAbs = 0x03; // EV_ABS
inline constexpr std::uint16_t kEvMsc = 0x04; // EV_MSC
inline constexpr std::uint16_t kEvMax = 0x1f; // EV_MAX

inline constexpr std::uint16_t kSynReport = 0;  // SYN_REPORT
inline constexpr std::uint16_t kSynDropped = 3; // SYN_DROPPED

inline constexpr std::uint16_t kBtnTouch = 0x14a; // BTN_TOUCH
inline constexpr std::uint16_t kKeyMax = 0x2ff;   // KEY_MAX

inline constexpr std::uint16_t kAbsX = 0x00;            // ABS_X
inline constexpr std::uint16_t kAbsY = 0x01;            // ABS_Y
inline constexpr std::uint16_t kAbsPressure = 0x18;     // ABS_PRESSURE
inline constexpr std::uint16_t kAbsMtSlot = 0x2f;       // ABS_MT_SLOT
inline constexpr std::uint16_t kAbsMtTouchMajor = 0x30; // ABS_MT_TOUCH_MAJOR
inline constexpr std::uint16_t kAbsMtPositionX = 0x35;  // ABS_MT_POSITION_X
inline constexpr std::uint16_t kAbsMtPositionY = 0x36;  // ABS_MT_POSITION_Y
inline constexpr std::uint16_t kAbsMtToolType = 0x37;   // ABS_MT_TOOL_TYPE
inline constexpr std::uint16_t kAbsMtTrackingId = 0x39; // ABS_MT_TRACKING_ID
inline constexpr std::uint16_t kAbsMtPressure = 0x3a;   // ABS_MT_PRESSURE
inline constexpr std::uint16_t kAbsMtToolY = 0x3d;      // ABS_MT_TOOL_Y
inline constexpr std::uint16_t kAbsMax = 0x3f;          // ABS_MAX

inline constexpr std::uint16_t kInputPropDirect = 0x01; // INPUT_PROP_DIRECT
inline constexpr std::uint16_t kInputPropMax = 0x1f;    // INPUT_PROP_MAX

inline constexpr std::uint16_t kMscTimestamp = 0x05; // MSC_TIMESTAMP

inline constexpr std::int32_t kMtToolFinger = 0x00; // MT_TOOL_FINGER
inline constexpr std::int32_t kMtToolPalm = 0x02;   // MT_TOOL_PALM

inline constexpr std::uint16_t kBusUsb = 0x03; // BUS_USB

} // namespace barquell::evdev
