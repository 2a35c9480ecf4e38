#include "platform/linux/tapd/kernel/UinputDevice.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>

namespace barquell::tapd {

namespace {

template <std::size_t kSize>
bool setBits(int control, unsigned long request, const std::bitset<kSize> &bits) {
    for (std::size_t bit = 0; bit < kSize; ++bit) {
        if (bits.test(bit) && ::ioctl(control, request, static_cast<int>(bit)) < 0) {
            return false;
        }
    }
    return true;
}

bool setTypes(int control, const evdev::DeviceDescription &description) {
    std::bitset<evdev::kEvMax + 1> types;
    types.set(EV_KEY, description.keys.any());
    types.set(EV_ABS, !description.axes.empty());
    types.set(EV_MSC, description.otherCodes.contains(EV_MSC));
    return setBits(control, UI_SET_EVBIT, types);
}

bool setAxes(int control, const evdev::DeviceDescription &description) {
    return std::all_of(description.axes.begin(), description.axes.end(), [control](const auto &entry) {
        const auto &[code, axis] = entry;
        uinput_abs_setup setup{};
        setup.code = code;
        setup.absinfo = {0, axis.minimum, axis.maximum, axis.fuzz, axis.flat, axis.resolution};
        return ::ioctl(control, UI_ABS_SETUP, &setup) >= 0;
    });
}

bool setUp(int control, const evdev::DeviceDescription &description) {
    uinput_setup setup{};
    setup.id = {description.bus, description.vendor, description.product, description.version};
    const std::size_t length = std::min(description.name.size(), sizeof setup.name - 1);
    std::copy_n(description.name.begin(), length, std::begin(setup.name));
    return ::ioctl(control, UI_DEV_SETUP, &setup) >= 0;
}

bool describeTo(int control, const evdev::DeviceDescription &description, const char *phys) {
    const auto misc = description.otherCodes.find(EV_MSC);
    return setTypes(control, description) && setBits(control, UI_SET_KEYBIT, description.keys) &&
           setBits(control, UI_SET_PROPBIT, description.properties) &&
           (misc == description.otherCodes.end() || setBits(control, UI_SET_MSCBIT, misc->second)) &&
           ::ioctl(control, UI_SET_PHYS, phys) >= 0 && setAxes(control, description) &&
           setUp(control, description);
}

} // namespace

std::optional<UinputDevice> UinputDevice::create(const evdev::DeviceDescription &description,
                                                 const char *phys) {
    UinputDevice device(FileDescriptor(::open("/dev/uinput", O_WRONLY | O_NONBLOCK | O_CLOEXEC)));
    const int control = device._control.get();
    if (control < 0 || !describeTo(control, description, phys) || ::ioctl(control, UI_DEV_CREATE) < 0) {
        return std::nullopt;
    }
    std::array<char, 64> name{};
    if (::ioctl(control, UI_GET_SYSNAME(sizeof name - 1), name.data()) < 0) {
        return std::nullopt;
    }
    device._sysname = name.data();
    return device;
}

UinputDevice::~UinputDevice() {
    if (_control.isValid()) {
        ::ioctl(_control.get(), UI_DEV_DESTROY);
    }
}

bool UinputDevice::write(std::span<const evdev::InputEvent> events) const {
    std::array<input_event, 256> raw;
    while (!events.empty()) {
        const std::size_t count = std::min(events.size(), raw.size());
        for (std::size_t i = 0; i < count; ++i) {
            raw.at(i) = {}; // the kernel sets the time
            raw.at(i).type = events[i].type;
            raw.at(i).code = events[i].code;
            raw.at(i).value = events[i].value;
        }
        const std::size_t bytes = count * sizeof(input_event);
        if (::write(_control.get(), raw.data(), bytes) != static_cast<ssize_t>(bytes)) {
            return false;
        }
        events = events.subspan(count);
    }
    return true;
}

} // namespace barquell::tapd
