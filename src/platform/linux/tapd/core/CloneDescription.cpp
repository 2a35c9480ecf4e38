#include "platform/linux/tapd/core/CloneDescription.h"

#include <algorithm>

namespace barquell::tapd {

evdev::DeviceDescription cloneDescription(const evdev::DeviceDescription &bar) {
    evdev::DeviceDescription clone = bar;
    // Bars report touches and time stamps; anything else is nothing that a clone would ever send.
    std::erase_if(clone.otherCodes, [](const auto &entry) { return entry.first != evdev::kEvMsc; });
    std::int32_t &lastSlot = clone.axes.at(evdev::kAbsMtSlot).maximum;
    lastSlot = std::min(lastSlot, kCloneSlots - 1);
    return clone;
}

} // namespace barquell::tapd
