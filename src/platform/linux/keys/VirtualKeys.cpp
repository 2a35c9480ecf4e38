#include "platform/linux/keys/VirtualKeys.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>
#include <limits>

namespace barquell {

namespace {

constexpr std::uint32_t kXOffset = 8;

struct Key {
    std::uint16_t virtualKey;
    std::uint16_t evdevCode;
};

/// Keys are paired by their HID usage: what Events.h calls keypad clear is Num Lock to the kernel, and help
/// is insert.
constexpr std::array kKeys{
    Key{0x00, KEY_A},        Key{0x01, KEY_S},          Key{0x02, KEY_D},          Key{0x03, KEY_F},
    Key{0x04, KEY_H},        Key{0x05, KEY_G},          Key{0x06, KEY_Z},          Key{0x07, KEY_X},
    Key{0x08, KEY_C},        Key{0x09, KEY_V},          Key{0x0A, KEY_102ND},      Key{0x0B, KEY_B},
    Key{0x0C, KEY_Q},        Key{0x0D, KEY_W},          Key{0x0E, KEY_E},          Key{0x0F, KEY_R},
    Key{0x10, KEY_Y},        Key{0x11, KEY_T},          Key{0x12, KEY_1},          Key{0x13, KEY_2},
    Key{0x14, KEY_3},        Key{0x15, KEY_4},          Key{0x16, KEY_6},          Key{0x17, KEY_5},
    Key{0x18, KEY_EQUAL},    Key{0x19, KEY_9},          Key{0x1A, KEY_7},          Key{0x1B, KEY_MINUS},
    Key{0x1C, KEY_8},        Key{0x1D, KEY_0},          Key{0x1E, KEY_RIGHTBRACE}, Key{0x1F, KEY_O},
    Key{0x20, KEY_U},        Key{0x21, KEY_LEFTBRACE},  Key{0x22, KEY_I},          Key{0x23, KEY_P},
    Key{0x24, KEY_ENTER},    Key{0x25, KEY_L},          Key{0x26, KEY_J},          Key{0x27, KEY_APOSTROPHE},
    Key{0x28, KEY_K},        Key{0x29, KEY_SEMICOLON},  Key{0x2A, KEY_BACKSLASH},  Key{0x2B, KEY_COMMA},
    Key{0x2C, KEY_SLASH},    Key{0x2D, KEY_N},          Key{0x2E, KEY_M},          Key{0x2F, KEY_DOT},
    Key{0x30, KEY_TAB},      Key{0x31, KEY_SPACE},      Key{0x32, KEY_GRAVE},      Key{0x33, KEY_BACKSPACE},
    Key{0x35, KEY_ESC},      Key{0x36, KEY_RIGHTMETA},  Key{0x37, KEY_LEFTMETA},   Key{0x38, KEY_LEFTSHIFT},
    Key{0x39, KEY_CAPSLOCK}, Key{0x3A, KEY_LEFTALT},    Key{0x3B, KEY_LEFTCTRL},   Key{0x3C, KEY_RIGHTSHIFT},
    Key{0x3D, KEY_RIGHTALT}, Key{0x3E, KEY_RIGHTCTRL},  Key{0x3F, KEY_FN},         Key{0x40, KEY_F17},
    Key{0x41, KEY_KPDOT},    Key{0x43, KEY_KPASTERISK}, Key{0x45, KEY_KPPLUS},     Key{0x47, KEY_NUMLOCK},
    Key{0x48, KEY_VOLUMEUP}, Key{0x49, KEY_VOLUMEDOWN}, Key{0x4A, KEY_MUTE},       Key{0x4B, KEY_KPSLASH},
    Key{0x4C, KEY_KPENTER},  Key{0x4E, KEY_KPMINUS},    Key{0x4F, KEY_F18},        Key{0x50, KEY_F19},
    Key{0x51, KEY_KPEQUAL},  Key{0x52, KEY_KP0},        Key{0x53, KEY_KP1},        Key{0x54, KEY_KP2},
    Key{0x55, KEY_KP3},      Key{0x56, KEY_KP4},        Key{0x57, KEY_KP5},        Key{0x58, KEY_KP6},
    Key{0x59, KEY_KP7},      Key{0x5A, KEY_F20},        Key{0x5B, KEY_KP8},        Key{0x5C, KEY_KP9},
    Key{0x5D, KEY_YEN},      Key{0x5E, KEY_RO},         Key{0x5F, KEY_KPJPCOMMA},  Key{0x60, KEY_F5},
    Key{0x61, KEY_F6},       Key{0x62, KEY_F7},         Key{0x63, KEY_F3},         Key{0x64, KEY_F8},
    Key{0x65, KEY_F9},       Key{0x66, KEY_HANJA},      Key{0x67, KEY_F11},        Key{0x68, KEY_HANGEUL},
    Key{0x69, KEY_F13},      Key{0x6A, KEY_F16},        Key{0x6B, KEY_F14},        Key{0x6D, KEY_F10},
    Key{0x6E, KEY_COMPOSE},  Key{0x6F, KEY_F12},        Key{0x71, KEY_F15},        Key{0x72, KEY_INSERT},
    Key{0x73, KEY_HOME},     Key{0x74, KEY_PAGEUP},     Key{0x75, KEY_DELETE},     Key{0x76, KEY_F4},
    Key{0x77, KEY_END},      Key{0x78, KEY_F2},         Key{0x79, KEY_PAGEDOWN},   Key{0x7A, KEY_F1},
    Key{0x7B, KEY_LEFT},     Key{0x7C, KEY_RIGHT},      Key{0x7D, KEY_DOWN},       Key{0x7E, KEY_UP},
};

/// What the key has in the one column, found by what it has in the other.
std::optional<std::uint16_t> lookUp(std::uint32_t number, std::uint16_t Key::*from, std::uint16_t Key::*to) {
    const auto *const key =
        std::find_if(kKeys.begin(), kKeys.end(), [=](const Key &each) { return each.*from == number; });
    return key == kKeys.end() ? std::nullopt : std::optional(key->*to);
}

} // namespace

std::optional<std::uint16_t> evdevCodeForVirtualKey(std::uint32_t virtualKey) {
    return lookUp(virtualKey, &Key::virtualKey, &Key::evdevCode);
}

std::optional<std::uint16_t> virtualKeyForEvdevCode(std::uint32_t evdevCode) {
    return lookUp(evdevCode, &Key::evdevCode, &Key::virtualKey);
}

std::optional<XKeyCode> xKeyCodeForVirtualKey(std::uint32_t virtualKey) {
    const auto code = evdevCodeForVirtualKey(virtualKey);
    if (!code || *code + kXOffset > std::numeric_limits<XKeyCode>::max()) {
        return std::nullopt;
    }
    return static_cast<XKeyCode>(*code + kXOffset);
}

std::optional<std::uint16_t> virtualKeyForXKeyCode(std::uint32_t keyCode) {
    return keyCode < kXOffset ? std::nullopt : virtualKeyForEvdevCode(keyCode - kXOffset);
}

} // namespace barquell
