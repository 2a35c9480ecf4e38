#include "evdev/DeviceKind.h"

#include "evdev/KeyMeaning.h"

namespace barquell::evdev {

namespace {

bool hasRange(const DeviceDescription &device, std::uint16_t code) {
    const auto axis = device.axes.find(code);
    return axis != device.axes.end() && axis->second.minimum < axis->second.maximum;
}

template <typename Predicate>
bool hasKey(const DeviceDescription &device, Predicate isWanted) {
    for (std::size_t code = 0; code < device.keys.size(); ++code) {
        if (device.keys.test(code) && isWanted(static_cast<std::uint16_t>(code))) {
            return true;
        }
    }
    return false;
}

} // namespace

bool hasTouchBarName(const DeviceDescription &device) {
    return device.name == "Apple Inc. Touch Bar Display Touchpad" || device.name.ends_with(" Touch Bar");
}

bool isTouchBar(const DeviceDescription &device) {
    if (!hasTouchBarName(device) || !device.properties.test(kInputPropDirect)) {
        return false;
    }
    const auto slots = device.axes.find(kAbsMtSlot);
    const bool plausibleSlots = slots != device.axes.end() && slots->second.minimum == 0 &&
                                slots->second.maximum >= 0 && slots->second.maximum < kMaximumSlots;
    return plausibleSlots && device.hasAxis(kAbsMtTrackingId) && hasRange(device, kAbsMtPositionX) &&
           hasRange(device, kAbsMtPositionY);
}

bool hasModifierKey(const DeviceDescription &device) {
    return hasKey(device, [](std::uint16_t key) { return modifierFlagsOf(key) != 0; });
}

bool isKeyboard(const DeviceDescription &device) {
    return hasModifierKey(device) || hasKey(device, isMediaKey);
}

} // namespace barquell::evdev
