#include "evdev/KeyMeaning.h"

#include "evdev/Codes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace barquell::evdev {

namespace {

struct ModifierKey {
    std::uint16_t code;
    ModifierFlags flags;
};

constexpr std::array<ModifierKey, 9> kModifierKeys{{
    {29, kFlagControl | kFlagLeftControl},   // KEY_LEFTCTRL
    {42, kFlagShift | kFlagLeftShift},       // KEY_LEFTSHIFT
    {54, kFlagShift | kFlagRightShift},      // KEY_RIGHTSHIFT
    {56, kFlagOption | kFlagLeftOption},     // KEY_LEFTALT
    {97, kFlagControl | kFlagRightControl},  // KEY_RIGHTCTRL
    {100, kFlagOption | kFlagRightOption},   // KEY_RIGHTALT
    {125, kFlagCommand | kFlagLeftCommand},  // KEY_LEFTMETA
    {126, kFlagCommand | kFlagRightCommand}, // KEY_RIGHTMETA
    {0x1d0, kFlagFn},                        // KEY_FN
}};

constexpr std::array<std::uint16_t, 16> kMediaKeys{
    113, // KEY_MUTE
    114, // KEY_VOLUMEDOWN
    115, // KEY_VOLUMEUP
    116, // KEY_POWER
    161, // KEY_EJECTCD
    163, // KEY_NEXTSONG
    164, // KEY_PLAYPAUSE
    165, // KEY_PREVIOUSSONG
    168, // KEY_REWIND
    208, // KEY_FASTFORWARD
    224, // KEY_BRIGHTNESSDOWN
    225, // KEY_BRIGHTNESSUP
    227, // KEY_SWITCHVIDEOMODE
    228, // KEY_KBDILLUMTOGGLE
    229, // KEY_KBDILLUMDOWN
    230, // KEY_KBDILLUMUP
};

static_assert(std::is_sorted(kMediaKeys.begin(), kMediaKeys.end()), "it is searched by halves");

constexpr std::int32_t kKeyUp = 0;
constexpr std::int32_t kKeyRepeat = 2;

} // namespace

ModifierFlags modifierFlagsOf(std::uint16_t keyCode) {
    const auto *key = std::find_if(kModifierKeys.begin(), kModifierKeys.end(),
                                   [&](const ModifierKey &entry) { return entry.code == keyCode; });
    return key == kModifierKeys.end() ? 0 : key->flags;
}

bool isMediaKey(std::uint16_t keyCode) {
    return std::binary_search(kMediaKeys.begin(), kMediaKeys.end(), keyCode);
}

std::optional<EventType> KeyMeaning::feed(const InputEvent &event) {
    const bool modifier = event.type == kEvKey && modifierFlagsOf(event.code) != 0;
    const bool media = event.type == kEvKey && isMediaKey(event.code);
    if (!modifier && !media) {
        return std::nullopt;
    }
    const bool wasHeld = _held.test(event.code);
    if (event.value == kKeyRepeat) {
        return media && wasHeld ? std::optional(EventType::SystemDefined) : std::nullopt;
    }
    _held.set(event.code, event.value != kKeyUp);
    if (wasHeld == _held.test(event.code)) {
        return std::nullopt;
    }
    if (media) {
        return EventType::SystemDefined;
    }
    updateFlags();
    return EventType::FlagsChanged;
}

void KeyMeaning::updateFlags() {
    _flags = 0;
    for (const ModifierKey &key : kModifierKeys) {
        _flags |= _held.test(key.code) ? key.flags : 0;
    }
}

} // namespace barquell::evdev
