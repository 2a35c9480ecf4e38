#include "platform/linux/tapd/kernel/DeviceQuery.h"

#include <algorithm>
#include <array>
#include <linux/input.h>
#include <sys/ioctl.h>

namespace barquell::tapd {

namespace {

// As the kernel hands out bits: in longs, which on little-endian machines is the order of the bytes.
using RawBits = std::array<std::uint8_t, (evdev::kKeyMax + 1) / 8>;

template <std::size_t kSize>
std::bitset<kSize> bitsOf(const RawBits &raw) {
    std::bitset<kSize> bits;
    for (std::size_t i = 0; i < kSize; ++i) {
        bits.set(i, (raw.at(i / 8) >> i % 8 & 1U) != 0);
    }
    return bits;
}

/// The codes of an event type, or for type 0 the event types.
std::bitset<evdev::kKeyMax + 1> codesOf(int node, unsigned type) {
    RawBits raw{};
    ::ioctl(node, EVIOCGBIT(type, sizeof raw), raw.data());
    return bitsOf<evdev::kKeyMax + 1>(raw);
}

void describeAxes(int node, evdev::DeviceDescription &device) {
    const auto axes = codesOf(node, EV_ABS);
    for (std::uint16_t code = 0; code <= evdev::kAbsMax; ++code) {
        input_absinfo axis{};
        if (axes.test(code) && ::ioctl(node, EVIOCGABS(code), &axis) >= 0) {
            device.axes[code] = {axis.minimum, axis.maximum, axis.fuzz, axis.flat, axis.resolution};
        }
    }
}

std::string textOf(int node, unsigned long request, std::array<char, 256> &buffer) {
    buffer.fill(0);
    return ::ioctl(node, request, buffer.data()) < 0 ? std::string() : std::string(buffer.data());
}

} // namespace

std::optional<evdev::DeviceDescription> describe(int node) {
    input_id id{};
    if (::ioctl(node, EVIOCGID, &id) < 0) {
        return std::nullopt;
    }
    evdev::DeviceDescription device;
    std::array<char, 256> buffer;
    device.name = textOf(node, EVIOCGNAME(sizeof buffer - 1), buffer);
    device.bus = id.bustype;
    device.vendor = id.vendor;
    device.product = id.product;
    device.version = id.version;
    RawBits properties{};
    ::ioctl(node, EVIOCGPROP(sizeof properties), properties.data());
    device.properties = bitsOf<evdev::kInputPropMax + 1>(properties);
    device.keys = codesOf(node, EV_KEY);
    describeAxes(node, device);
    const auto types = codesOf(node, 0);
    for (std::uint16_t type = 0; type <= evdev::kEvMax; ++type) {
        if (types.test(type) && type != EV_SYN && type != EV_KEY && type != EV_ABS) {
            device.otherCodes[type] = codesOf(node, type);
        }
    }
    return device;
}

std::string physOf(int node) {
    std::array<char, 256> buffer;
    return textOf(node, EVIOCGPHYS(sizeof buffer - 1), buffer);
}

std::optional<BarState> heldSlots(int node, const evdev::DeviceDescription &device) {
    struct {
        std::uint32_t code;
        std::array<std::int32_t, evdev::kMaximumSlots> values;
    } request{};
    input_absinfo current{};
    if (::ioctl(node, EVIOCGABS(ABS_MT_SLOT), &current) < 0) {
        return std::nullopt;
    }
    BarState state;
    state.slot = current.value;
    const int slots = std::clamp(device.axes.at(evdev::kAbsMtSlot).maximum + 1, 0, evdev::kMaximumSlots);
    state.contacts.resize(static_cast<std::size_t>(slots));
    for (std::uint16_t code = evdev::Slot::kFirstAxis; code <= evdev::Slot::kLastAxis; ++code) {
        request.code = code;
        if (!device.hasAxis(code)) {
            continue;
        }
        if (::ioctl(node, EVIOCGMTSLOTS(sizeof request), &request) < 0) {
            return std::nullopt;
        }
        for (std::size_t i = 0; i < state.contacts.size(); ++i) {
            evdev::Slot &slot = state.contacts[i];
            const std::int32_t value = request.values.at(i);
            if (code == evdev::kAbsMtTrackingId) {
                slot.trackingId = std::max(value, evdev::kNoContact);
            } else {
                slot.axis(code) = value;
            }
        }
    }
    while (!state.contacts.empty() && state.contacts.back() == evdev::Slot()) {
        state.contacts.pop_back();
    }
    return state;
}

std::optional<std::bitset<evdev::kKeyMax + 1>> heldKeys(int node) {
    RawBits raw{};
    if (::ioctl(node, EVIOCGKEY(sizeof raw), raw.data()) < 0) {
        return std::nullopt;
    }
    return bitsOf<evdev::kKeyMax + 1>(raw);
}

} // namespace barquell::tapd
