#include "platform/linux/keys/ModifierKeys.h"

#include <xkbcommon/xkbcommon-keysyms.h>

namespace barquell {

std::optional<Qt::KeyboardModifier> modifierOfKey(xkb_keysym_t keysym) {
    switch (keysym) {
    case XKB_KEY_Shift_L:
    case XKB_KEY_Shift_R:
        return Qt::ShiftModifier;
    case XKB_KEY_Control_L:
    case XKB_KEY_Control_R:
        return Qt::ControlModifier;
    case XKB_KEY_Alt_L:
    case XKB_KEY_Alt_R:
    case XKB_KEY_Meta_L: // what Alt types while Shift is down
    case XKB_KEY_Meta_R:
        return Qt::AltModifier;
    case XKB_KEY_Super_L:
    case XKB_KEY_Super_R:
        return Qt::MetaModifier;
    case XKB_KEY_Caps_Lock:
    case XKB_KEY_Shift_Lock:
    case XKB_KEY_Mode_switch:
    case XKB_KEY_Hyper_L:
    case XKB_KEY_Hyper_R:
        return Qt::NoModifier;
    default: // AltGr and the keys that change the layout
        return keysym >= XKB_KEY_ISO_Lock && keysym <= XKB_KEY_ISO_Level5_Lock ? std::optional(Qt::NoModifier)
                                                                               : std::nullopt;
    }
}

ModifierFlags flagOf(Qt::KeyboardModifier modifier, KeyMeanings meanings) {
    const bool physical = meanings == KeyMeanings::Physical;
    switch (modifier) {
    case Qt::ShiftModifier:
        return kFlagShift;
    case Qt::AltModifier:
        return kFlagOption;
    case Qt::ControlModifier:
        return physical ? kFlagControl : kFlagCommand;
    case Qt::MetaModifier:
        return physical ? kFlagCommand : kFlagControl;
    default:
        return 0;
    }
}

} // namespace barquell
