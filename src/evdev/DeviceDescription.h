#pragma once

#include "evdev/Codes.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <string>

namespace barquell::evdev {

/// An axis as the kernel describes it (struct input_absinfo), without its momentary value.
struct AxisInfo {
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
    std::int32_t fuzz = 0;
    std::int32_t flat = 0;
    std::int32_t resolution = 0;

    bool operator==(const AxisInfo &) const = default;
};

/// Who a device says it is and what it says it can do. Nothing in it is to be trusted before it is checked.
struct DeviceDescription {
    std::string name;
    std::uint16_t bus = 0;
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    std::uint16_t version = 0;
    std::bitset<kInputPropMax + 1> properties;
    std::bitset<kKeyMax + 1> keys;
    /// The other event types, each with its codes; EV_SYN, EV_KEY and EV_ABS are not among them.
    std::map<std::uint16_t, std::bitset<kKeyMax + 1>> otherCodes;
    std::map<std::uint16_t, AxisInfo> axes; ///< by EV_ABS code

    bool hasAxis(std::uint16_t code) const { return axes.contains(code); }
};

} // namespace barquell::evdev
