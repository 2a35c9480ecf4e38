#include "platform/linux/keys/XModifiers.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <array>
#include <span>

namespace barquell {

namespace {

constexpr int kModifierCount = 8;
constexpr std::uint16_t kModifierBits = 0xFF; // the others are the layout and the buttons

using Keysyms = std::span<const xcb_keysym_t>;

bool containsEither(Keysyms keysyms, xcb_keysym_t left, xcb_keysym_t right) {
    return std::any_of(keysyms.begin(), keysyms.end(),
                       [=](xcb_keysym_t each) { return each == left || each == right; });
}

/// What the keys of each modifier type.
struct ModifierKeysyms {
    std::uint16_t XModifiers::*member;
    xcb_keysym_t left;
    xcb_keysym_t right;
};
constexpr std::array kKeysyms{
    ModifierKeysyms{&XModifiers::command, XKB_KEY_Super_L, XKB_KEY_Super_R},
    ModifierKeysyms{&XModifiers::option, XKB_KEY_Alt_L, XKB_KEY_Alt_R},
    ModifierKeysyms{&XModifiers::numLock, XKB_KEY_Num_Lock, XKB_KEY_Num_Lock},
};

} // namespace

XModifiers XModifiers::read(const XConnection &connection) {
    const xcb_keycode_t first = connection.setup().min_keycode;
    const auto count = static_cast<std::uint8_t>(connection.setup().max_keycode - first + 1);
    const auto mappingCookie = xcb_get_modifier_mapping(connection);
    const auto keyboardCookie = xcb_get_keyboard_mapping(connection, first, count);
    const XMessage<xcb_get_modifier_mapping_reply_t> mapping(
        xcb_get_modifier_mapping_reply(connection, mappingCookie, nullptr));
    const XMessage<xcb_get_keyboard_mapping_reply_t> keyboard(
        xcb_get_keyboard_mapping_reply(connection, keyboardCookie, nullptr));
    if (!mapping || !keyboard) {
        return {};
    }
    const std::size_t perKey = keyboard->keysyms_per_keycode;
    const Keysyms keysyms(xcb_get_keyboard_mapping_keysyms(keyboard.get()), perKey * count);
    const std::size_t perModifier = mapping->keycodes_per_modifier;
    const std::span keys(xcb_get_modifier_mapping_keycodes(mapping.get()), perModifier * kModifierCount);
    XModifiers result;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] < first) {
            continue; // an empty place
        }
        const Keysyms typed = keysyms.subspan(static_cast<std::size_t>(keys[i] - first) * perKey, perKey);
        const auto bit = static_cast<std::uint16_t>(1U << (i / perModifier));
        for (const auto &[member, left, right] : kKeysyms) {
            if (containsEither(typed, left, right)) {
                result.*member = static_cast<std::uint16_t>(result.*member | bit);
            }
        }
    }
    return result;
}

std::optional<std::uint16_t> XModifiers::mask(HotKeyModifiers modifiers) const {
    struct Pair {
        HotKeyModifiers modifier;
        std::uint16_t bit;
    };
    const std::array pairs{Pair{kHotKeyCommand, command}, Pair{kHotKeyShift, XCB_MOD_MASK_SHIFT},
                           Pair{kHotKeyAlphaLock, XCB_MOD_MASK_LOCK}, Pair{kHotKeyOption, option},
                           Pair{kHotKeyControl, XCB_MOD_MASK_CONTROL}};
    std::uint16_t mask = 0;
    for (const Pair &pair : pairs) {
        if ((modifiers & pair.modifier) == 0) {
            continue;
        }
        if (pair.bit == 0) {
            return std::nullopt;
        }
        mask |= pair.bit;
    }
    return mask;
}

std::vector<std::uint16_t> XModifiers::withLocks(std::uint16_t mask) const {
    const std::uint16_t locks = ignoredLocks(mask);
    std::vector<std::uint16_t> masks;
    for (std::uint16_t subset = locks;; subset = static_cast<std::uint16_t>((subset - 1) & locks)) {
        masks.push_back(mask | subset);
        if (subset == 0) {
            return masks;
        }
    }
}

bool XModifiers::matches(std::uint16_t state, std::uint16_t mask) const {
    return (state & kModifierBits & ~ignoredLocks(mask)) == mask;
}

} // namespace barquell
