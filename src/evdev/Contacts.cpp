#include "evdev/Contacts.h"

#include <algorithm>

namespace barquell::evdev {

Slot slotAt(const Contacts &contacts, std::size_t index) {
    return index < contacts.size() ? contacts[index] : Slot();
}

bool anyContact(const Contacts &contacts) {
    return std::any_of(contacts.begin(), contacts.end(),
                       [](const Slot &slot) { return slot.trackingId >= 0; });
}

} // namespace barquell::evdev
