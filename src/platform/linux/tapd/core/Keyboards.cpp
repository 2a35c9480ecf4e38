#include "platform/linux/tapd/core/Keyboards.h"

namespace barquell::tapd {

void Keyboards::read(int keyboard, std::span<const evdev::InputEvent> events) {
    const auto meaning = _keyboards.find(keyboard);
    if (meaning == _keyboards.end()) {
        return;
    }
    for (const evdev::InputEvent &event : events) {
        meaning->second.feed(event);
    }
}

ModifierFlags Keyboards::flags() const {
    ModifierFlags flags = 0;
    for (const auto &[keyboard, meaning] : _keyboards) {
        flags |= meaning.flags();
    }
    return flags;
}

} // namespace barquell::tapd
