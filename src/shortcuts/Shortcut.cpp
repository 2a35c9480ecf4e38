#include "shortcuts/Shortcut.h"

#include "foundation/Values.h"
#include "platform/KeyboardLayout.h"
#include "platform/Platform.h"
#include "shortcuts/KeyTables.h"

#include <array>

namespace barquell {

namespace {

constexpr std::uint64_t kKeyCodeMask = 0xFFFF;

std::optional<QString> displayName(std::uint64_t keyCode) {
    if (keyCode == kNoKeyCode) {
        return QString();
    }
    if (auto name = fixedKeyName(keyCode)) {
        return name;
    }
    const KeyboardLayout *layout = platform().keyboardLayout;
    const auto name =
        layout ? layout->displayName(static_cast<std::uint16_t>(keyCode & kKeyCodeMask)) : std::nullopt;
    return name ? std::optional(name->toUpper()) : std::nullopt;
}

/// A number as an unsigned one, where a negative number wraps around; nothing for what is no number.
std::optional<std::uint64_t> unsignedNumber(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::ULongLong:
        return value.toULongLong();
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return static_cast<std::uint64_t>(integerValue(value));
    default:
        return std::nullopt;
    }
}

} // namespace

Shortcut::Shortcut(std::uint64_t keyCode, ModifierFlags modifierFlags, std::optional<QString> keyCodeString)
    : _keyCodeString(keyCodeString ? std::move(keyCodeString) : displayName(keyCode)), _keyCode(keyCode),
      _modifierFlags(modifierFlags) {}

Shortcut Shortcut::shortcutFromKeyEvent(const KeyEvent &event) {
    return {event.keyCode, event.modifierFlags & kShortcutModifiers};
}

std::optional<Shortcut> Shortcut::shortcutFromStorageRepresentation(const QVariant &representation) {
    if (representation.typeId() != QMetaType::QVariantList) {
        return std::nullopt;
    }
    const QVariantList list = representation.toList();
    const auto keyCode = unsignedNumber(list.value(0));
    const auto flags = unsignedNumber(list.value(1));
    if (!keyCode || !flags) {
        return std::nullopt;
    }
    const QVariant name = list.value(2);
    return Shortcut(*keyCode, *flags,
                    name.typeId() == QMetaType::QString ? std::optional(name.toString()) : std::nullopt);
}

QVariantList Shortcut::storageRepresentation(std::uint64_t keyCode, ModifierFlags modifierFlags) {
    // Settings hold 64 bits with a sign; what lies beyond wraps around, and back when it is read.
    return {static_cast<qlonglong>(keyCode), static_cast<qlonglong>(modifierFlags)};
}

bool Shortcut::validate(std::uint64_t keyCode, ModifierFlags modifierFlags) {
    return isFunctionKey(keyCode) || (modifierFlags & (kFlagControl | kFlagOption | kFlagCommand)) != 0;
}

QString Shortcut::modifierFlagsString(ModifierFlags modifierFlags) {
    struct Symbol {
        ModifierFlags flag;
        char16_t character;
    };
    static constexpr std::array kSymbols{Symbol{kFlagControl, u'⌃'}, Symbol{kFlagOption, u'⌥'},
                                         Symbol{kFlagShift, u'⇧'}, Symbol{kFlagCommand, u'⌘'}};
    QString symbols;
    for (const Symbol &symbol : kSymbols) {
        if ((modifierFlags & symbol.flag) != 0) {
            symbols += QChar(symbol.character);
        }
    }
    return symbols;
}

QString Shortcut::description() const {
    return QStringLiteral("{key=%1[%2], flags=%3}")
        .arg(_keyCodeString.value_or(QStringLiteral("(null)")), QString::number(_keyCode),
             modifierFlagsString());
}

std::optional<QString> Shortcut::keyEquivalentString() const {
    if (auto fixed = fixedKeyEquivalent(_keyCode)) {
        return fixed;
    }
    return _keyCodeString ? std::optional(_keyCodeString->toLower()) : std::nullopt;
}

} // namespace barquell
