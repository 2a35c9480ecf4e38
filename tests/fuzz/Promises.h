#pragma once

#include "recording/Recording.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace barquell::fuzz {

inline void require(bool condition, const char *what) {
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}

/// A name as the interface promises it. Written apart from the readers, which is why it is blunter than they
/// are: it takes the leading byte's word for how many follow.
inline bool isCleanName(std::string_view name) {
    for (std::size_t i = 0; i < name.size();) {
        const auto lead = static_cast<unsigned char>(name[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        const auto second = static_cast<unsigned char>(length > 1 && i + 1 < name.size() ? name[i + 1] : 0);
        const bool control = lead < 0x20 || lead == 0x7F || (lead == 0xC2 && second < 0xA0);
        if (control || (lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || i + length > name.size()) {
            return false;
        }
        for (std::size_t j = 1; j < length; ++j) {
            if ((static_cast<unsigned char>(name[i + j]) & 0xC0U) != 0x80) {
                return false;
            }
        }
        i += length;
    }
    return name.size() <= recording::kMaximumName;
}

/// What every recording keeps, whatever it was read from.
inline void requirePromises(const recording::Recording &recording) {
    constexpr std::int64_t kEndOfTime = ((std::int64_t{1} << 31) + 1) * 1'000'000;
    require(recording.devices.size() <= recording::kMaximumDevices, "no more devices than the limit");
    require(!recording.devices.empty() || !recording.complaint.empty(), "no device is worth a complaint");
    require(recording.complaint.find_first_of("\r\n") == std::string::npos, "a complaint has one line");
    std::size_t events = 0;
    for (const recording::RecordedDevice &device : recording.devices) {
        events += device.events.size();
        require(isCleanName(device.description.name), "names are clean");
        for (const auto &[code, axis] : device.description.axes) {
            require(code <= evdev::kAbsMax, "axes are such as the kernel has");
        }
        for (const auto &[type, codes] : device.description.otherCodes) {
            require(type <= evdev::kEvMax && codes.any(), "types are such as the kernel has, and have codes");
            require(type != evdev::kEvSyn && type != evdev::kEvKey && type != evdev::kEvAbs,
                    "types are others");
        }
        std::int64_t last = 0;
        for (const evdev::InputEvent &event : device.events) {
            require(event.time >= last && event.time < kEndOfTime, "times never decrease and have an end");
            last = event.time;
        }
    }
    require(events <= recording::kMaximumEvents, "no more events than the limit");
}

inline bool sameDevice(const recording::RecordedDevice &left, const recording::RecordedDevice &right) {
    const evdev::DeviceDescription &a = left.description;
    const evdev::DeviceDescription &b = right.description;
    return a.name == b.name && a.bus == b.bus && a.vendor == b.vendor && a.product == b.product &&
           a.version == b.version && a.properties == b.properties && a.keys == b.keys &&
           a.otherCodes == b.otherCodes && a.axes == b.axes && left.events == right.events;
}

} // namespace barquell::fuzz
