#include "platform/linux/keys/NativeKeyEvents.h"

#include "platform/linux/keys/ModifierKeys.h"
#include "platform/linux/keys/VirtualKeys.h"

#include <linux/input-event-codes.h>

#include <QApplication>
#include <QKeyEvent>

#include <array>

namespace barquell {

namespace {

constexpr XKeyCode xCode(int evdevCode) {
    return static_cast<XKeyCode>(evdevCode + 8);
}

/// The two keys that hold a modifier.
struct Sides {
    Qt::KeyboardModifier modifier;
    XKeyCode left;
    XKeyCode right;
};
constexpr std::array kSides{
    Sides{Qt::ShiftModifier, xCode(KEY_LEFTSHIFT), xCode(KEY_RIGHTSHIFT)},
    Sides{Qt::ControlModifier, xCode(KEY_LEFTCTRL), xCode(KEY_RIGHTCTRL)},
    Sides{Qt::AltModifier, xCode(KEY_LEFTALT), xCode(KEY_RIGHTALT)},
    Sides{Qt::MetaModifier, xCode(KEY_LEFTMETA), xCode(KEY_RIGHTMETA)},
};

struct SideFlags {
    ModifierFlags left;
    ModifierFlags right;
};

SideFlags sideFlagsOf(ModifierFlags generic) {
    switch (generic) {
    case kFlagShift:
        return {kFlagLeftShift, kFlagRightShift};
    case kFlagControl:
        return {kFlagLeftControl, kFlagRightControl};
    case kFlagOption:
        return {kFlagLeftOption, kFlagRightOption};
    default:
        return {kFlagLeftCommand, kFlagRightCommand};
    }
}

/// X11 numbers its layouts in two bits of an event's state.
std::uint32_t layoutOf(const QKeyEvent &event) {
    return event.nativeModifiers() >> 13 & 3U;
}

} // namespace

std::optional<KeyEvent> NativeKeyEvents::keyEvent(const QKeyEvent &event, KeyMeanings meanings) const {
    const auto keyCode = virtualKeyForXKeyCode(event.nativeScanCode());
    if (!keyCode) {
        return std::nullopt;
    }
    KeyEvent result;
    result.keyCode = *keyCode;
    result.modifierFlags = flagsAfter(event, meanings);
    if (modifierOfKey(event.nativeVirtualKey())) {
        result.type = KeyEvent::Type::FlagsChanged;
        return result;
    }
    if (event.type() == QEvent::KeyRelease) {
        return std::nullopt;
    }
    result.charactersIgnoringModifiers = characters(event, static_cast<XKeyCode>(event.nativeScanCode()));
    result.isARepeat = event.isAutoRepeat();
    return result;
}

/// X11 says what was held before the event; which sides, and whether a modifier's other key stays down, only
/// the keyboard knows.
ModifierFlags NativeKeyEvents::flagsAfter(const QKeyEvent &event, KeyMeanings meanings) const {
    RunningKeymap::KeysDown down = _keyboard.keysDown();
    const auto changed = modifierOfKey(event.nativeVirtualKey());
    if (event.nativeScanCode() < down.size()) {
        down[event.nativeScanCode()] = event.type() == QEvent::KeyPress;
    }
    ModifierFlags flags = 0;
    for (const Sides &sides : kSides) {
        const bool anyDown = down[sides.left] || down[sides.right];
        const bool held = changed == sides.modifier ? event.type() == QEvent::KeyPress || anyDown
                                                    : event.modifiers().testFlag(sides.modifier);
        if (held) {
            const ModifierFlags generic = flagOf(sides.modifier, meanings);
            const SideFlags flagsOfSides = sideFlagsOf(generic);
            flags |= generic | (down[sides.left] ? flagsOfSides.left : 0) |
                     (down[sides.right] ? flagsOfSides.right : 0);
        }
    }
    return flags;
}

QString NativeKeyEvents::characters(const QKeyEvent &event, XKeyCode key) const {
    const auto keymap = _keyboard.keymap();
    return keymap ? keymap->characters(key, layoutOf(event), event.modifiers().testFlag(Qt::ShiftModifier))
                  : event.text();
}

void NativeKeyEvents::beep() {
    QApplication::beep();
}

} // namespace barquell
