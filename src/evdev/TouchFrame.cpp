#include "evdev/TouchFrame.h"

#include <algorithm>

namespace barquell::evdev {

Slot slotAt(const Contacts &contacts, std::size_t index) {
    return index < contacts.size() ? contacts[index] : Slot();
}

bool anyContact(const Contacts &contacts) {
    return std::any_of(contacts.begin(), contacts.end(),
                       [](const Slot &slot) { return slot.trackingId >= 0; });
}

int TouchFrame::count(TouchPhases phases) const {
    const auto all = touches();
    return static_cast<int>(std::count_if(all.begin(), all.end(),
                                          [&](const Touch &touch) { return (touch.phase & phases) != 0; }));
}

} // namespace barquell::evdev
