#include "platform/simulated/ScriptedKeyEvents.h"

#include "platform/simulated/FixedKeyboardLayout.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace barquell {

namespace {

struct NamedKey {
    Qt::Key key;
    std::uint16_t keyCode; // kVK_…, HIToolbox/Events.h
    Qt::KeyboardModifier modifier = Qt::NoModifier;
};

constexpr std::array kNamedKeys{
    NamedKey{Qt::Key_Return, 36},
    NamedKey{Qt::Key_Tab, 48},
    NamedKey{Qt::Key_Backtab, 48},
    NamedKey{Qt::Key_Space, 49},
    NamedKey{Qt::Key_Backspace, 51},
    NamedKey{Qt::Key_Escape, 53},
    NamedKey{Qt::Key_Meta, 55, Qt::MetaModifier},
    NamedKey{Qt::Key_Shift, 56, Qt::ShiftModifier},
    NamedKey{Qt::Key_Alt, 58, Qt::AltModifier},
    NamedKey{Qt::Key_Control, 59, Qt::ControlModifier},
    NamedKey{Qt::Key_F1, 122},
    NamedKey{Qt::Key_F2, 120},
    NamedKey{Qt::Key_F3, 99},
    NamedKey{Qt::Key_F4, 118},
    NamedKey{Qt::Key_F5, 96},
    NamedKey{Qt::Key_F6, 97},
    NamedKey{Qt::Key_F7, 98},
    NamedKey{Qt::Key_F8, 100},
    NamedKey{Qt::Key_F9, 101},
    NamedKey{Qt::Key_F10, 109},
    NamedKey{Qt::Key_F11, 103},
    NamedKey{Qt::Key_F12, 111},
    NamedKey{Qt::Key_Delete, 117},
    NamedKey{Qt::Key_Left, 123},
    NamedKey{Qt::Key_Right, 124},
    NamedKey{Qt::Key_Down, 125},
    NamedKey{Qt::Key_Up, 126},
};

ModifierFlags flagsOf(Qt::KeyboardModifiers modifiers, KeyMeanings meanings) {
    const bool physical = meanings == KeyMeanings::Physical;
    return (modifiers.testFlag(Qt::ShiftModifier) ? kFlagShift : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? kFlagOption : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? (physical ? kFlagControl : kFlagCommand) : 0) |
           (modifiers.testFlag(Qt::MetaModifier) ? (physical ? kFlagCommand : kFlagControl) : 0);
}

QString typed(const QKeyEvent &event) {
    const QChar letter(static_cast<char16_t>(event.key()));
    return event.modifiers().testFlag(Qt::ShiftModifier) ? letter : letter.toLower();
}

std::optional<KeyEvent> usKeyEvent(const QKeyEvent &event, KeyMeanings meanings) {
    const bool pressed = event.type() == QEvent::KeyPress;
    const auto *const named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                                           [&](const NamedKey &each) { return each.key == event.key(); });
    if (named != kNamedKeys.end() && named->modifier != Qt::NoModifier) {
        auto after = event.modifiers();
        after.setFlag(named->modifier, pressed);
        return KeyEvent{KeyEvent::Type::FlagsChanged, named->keyCode, flagsOf(after, meanings), {}, false};
    }
    if (!pressed) {
        return std::nullopt;
    }
    KeyEvent result{KeyEvent::Type::KeyDown, 0, flagsOf(event.modifiers(), meanings), event.text(),
                    event.isAutoRepeat()};
    if (named != kNamedKeys.end()) {
        result.keyCode = named->keyCode;
        return result;
    }
    const auto keyCode = FixedKeyboardLayout::keyCodeFor(QChar(static_cast<char16_t>(event.key())).toLower());
    result.keyCode = keyCode.value_or(0xFFFF);
    if (keyCode) {
        result.charactersIgnoringModifiers = typed(event);
    }
    return result;
}

} // namespace

std::optional<KeyEvent> ScriptedKeyEvents::keyEvent(const QKeyEvent &event, KeyMeanings meanings) const {
    if (script.empty()) {
        return usKeyEvent(event, meanings);
    }
    KeyEvent next = std::move(script.front());
    script.pop_front();
    return next;
}

} // namespace barquell
