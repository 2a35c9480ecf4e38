#include "shortcuts/controls/KeySequence.h"

#include "platform/KeyEvents.h"
#include "platform/Platform.h"

#include <algorithm>
#include <array>

namespace barquell {

namespace {

struct NamedKey {
    char16_t character;
    Qt::Key key;
};

/// Characters of keys that type none (NSEvent.h), and those that Qt knows by name.
constexpr std::array kNamedKeys{
    NamedKey{u'\r', Qt::Key_Return},    NamedKey{u'\t', Qt::Key_Tab},       NamedKey{u' ', Qt::Key_Space},
    NamedKey{u'\b', Qt::Key_Backspace}, NamedKey{0x1B, Qt::Key_Escape},     NamedKey{0xF700, Qt::Key_Up},
    NamedKey{0xF701, Qt::Key_Down},     NamedKey{0xF702, Qt::Key_Left},     NamedKey{0xF703, Qt::Key_Right},
    NamedKey{0xF728, Qt::Key_Delete},   NamedKey{0xF729, Qt::Key_Home},     NamedKey{0xF72B, Qt::Key_End},
    NamedKey{0xF72C, Qt::Key_PageUp},   NamedKey{0xF72D, Qt::Key_PageDown}, NamedKey{0xF746, Qt::Key_Help},
};
constexpr char16_t kF1 = 0xF704;
constexpr char16_t kF20 = 0xF717;

Qt::Key keyOf(QChar character) {
    const char16_t code = character.unicode();
    if (code >= kF1 && code <= kF20) {
        return static_cast<Qt::Key>(Qt::Key_F1 + (code - kF1));
    }
    const auto *const named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                                           [=](const NamedKey &each) { return each.character == code; });
    return named == kNamedKeys.end() ? static_cast<Qt::Key>(character.toUpper().unicode()) : named->key;
}

} // namespace

QKeySequence keySequence(const QString &keyEquivalent, ModifierFlags modifierMask) {
    if (keyEquivalent.isEmpty()) {
        return {};
    }
    const KeyEvents *keys = platform().keyEvents;
    const bool exchanged = keys && keys->exchangesControlAndCommand();
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (modifierMask & kFlagShift) != 0);
    modifiers.setFlag(Qt::ControlModifier, (modifierMask & (exchanged ? kFlagCommand : kFlagControl)) != 0);
    modifiers.setFlag(Qt::AltModifier, (modifierMask & kFlagOption) != 0);
    modifiers.setFlag(Qt::MetaModifier, (modifierMask & (exchanged ? kFlagControl : kFlagCommand)) != 0);
    return {QKeyCombination(modifiers, keyOf(keyEquivalent.front()))};
}

} // namespace barquell
