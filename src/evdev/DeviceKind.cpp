#include "evdev/DeviceKind.h"

#include "evdev/KeyMeaning.h"

#include <string_view>

namespace barquell::evdev {

namespace {

bool isTouchBarName(std::string_view name) {
    return name == "Apple Inc. Touch Bar Display Touchpad" || name.ends_with(" Touch Bar");
}

bool hasRange(const DeviceDescription &device, std::uint16_t code) {
    const auto axis = device.axes.find(code);
    return axis != device.axes.end() && axis->second.minimum < axis->second.maximum;
}

} // namespace

bool isTouchBar(const DeviceDescription &device) {
    if (!isTouchBarName(device.name) || !device.properties.test(kInputPropDirect)) {
        return false;
    }
    const auto slots = device.axes.find(kAbsMtSlot);
    const bool plausibleSlots = slots != device.axes.end() && slots->second.minimum == 0 &&
                                slots->second.maximum >= 0 && slots->second.maximum < kMaximumSlots;
    return plausibleSlots && device.hasAxis(kAbsMtTrackingId) && hasRange(device, kAbsMtPositionX) &&
           hasRange(device, kAbsMtPositionY);
}

bool isKeyboard(const DeviceDescription &device) {
    for (std::size_t code = 0; code < device.keys.size(); ++code) {
        const auto key = static_cast<std::uint16_t>(code);
        if (device.keys.test(code) && (modifierFlagsOf(key) != 0 || isMediaKey(key))) {
            return true;
        }
    }
    return false;
}

} // namespace barquell::evdev
