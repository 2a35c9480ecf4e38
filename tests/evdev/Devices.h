#pragma once

#include "evdev/Codes.h"
#include "evdev/DeviceDescription.h"
#include "evdev/InputEvent.h"

#include <initializer_list>
#include <vector>

namespace barquell::test {

/// The digitizer of a T2 Mac's bar.
inline evdev::DeviceDescription t2Bar() {
    evdev::DeviceDescription bar;
    bar.name = "Apple Inc. Touch Bar Display Touchpad";
    bar.bus = evdev::kBusUsb;
    bar.vendor = 0x05ac;
    bar.product = 0x8302;
    bar.properties.set(evdev::kInputPropDirect);
    bar.keys.set(evdev::kBtnTouch);
    bar.axes[evdev::kAbsX] = bar.axes[evdev::kAbsMtPositionX] = {0, 32767, 0, 0, 0};
    bar.axes[evdev::kAbsY] = bar.axes[evdev::kAbsMtPositionY] = {0, 127, 0, 0, 0};
    bar.axes[evdev::kAbsMtSlot] = {0, 10, 0, 0, 0};
    bar.axes[evdev::kAbsMtTrackingId] = {0, 65535, 0, 0, 0};
    return bar;
}

/// The same with contacts that can turn out to be palms.
inline evdev::DeviceDescription palmBar() {
    evdev::DeviceDescription bar = t2Bar();
    bar.axes[evdev::kAbsMtToolType] = {0, 2, 0, 0, 0};
    return bar;
}

/// Absolute axes of a frame and its report.
struct Axis {
    std::uint16_t code;
    std::int32_t value;
};

inline std::vector<evdev::InputEvent> frame(std::initializer_list<Axis> axes, std::int64_t time = 0) {
    std::vector<evdev::InputEvent> events;
    for (const Axis &axis : axes) {
        events.push_back({time, evdev::kEvAbs, axis.code, axis.value});
    }
    events.push_back({time, evdev::kEvSyn, evdev::kSynReport, 0});
    return events;
}

} // namespace barquell::test
