#pragma once

#include "platform/KeyEvents.h"

#include <QString>
#include <QVariant>

#include <cstdint>
#include <optional>

namespace barquell {

/// Means that there is no key; its name is "". macOS: NSNotFound.
inline constexpr std::uint64_t kNoKeyCode = 0x7FFFFFFFFFFFFFFF;

/// The modifiers that a shortcut may hold: Shift, Control, Option, Command.
inline constexpr ModifierFlags kShortcutModifiers = kFlagShift | kFlagControl | kFlagOption | kFlagCommand;

/// The value of one keyboard shortcut: a virtual key code (see KeyboardLayout), modifier flags, and the key's
/// name as it is displayed. No shortcut is an empty optional, a missing string too. Main thread only.
class Shortcut {
public:
    Shortcut() = delete;

    /// A key without a given name has the fixed one, or what the keyboard layout calls it now.
    Shortcut(std::uint64_t keyCode, ModifierFlags modifierFlags,
             std::optional<QString> keyCodeString = std::nullopt);

    /// Of a key that went down; what is no modifier of shortcuts is dropped.
    static Shortcut shortcutFromKeyEvent(const KeyEvent &event);

    /// Of a list of key code and flags, and possibly a name; nothing for anything else, so for the empty
    /// list.
    static std::optional<Shortcut> shortcutFromStorageRepresentation(const QVariant &representation);

    /// What settings hold: a list of key code and flags. The name is never stored.
    static QVariantList storageRepresentation(std::uint64_t keyCode, ModifierFlags modifierFlags);
    QVariantList storageRepresentation() const { return storageRepresentation(_keyCode, _modifierFlags); }
    static QVariantList emptyStorageRepresentation() { return {}; }

    /// May it serve as a global shortcut? A function key alone may, others with Control, Option or Command.
    static bool validate(std::uint64_t keyCode, ModifierFlags modifierFlags);
    bool validate() const { return validate(_keyCode, _modifierFlags); }

    /// The symbols of the flags, in the order Control, Option, Shift, Command.
    static QString modifierFlagsString(ModifierFlags modifierFlags);
    QString modifierFlagsString() const { return modifierFlagsString(_modifierFlags); }

    /// The same key and flags, but the key is named anew: a name given at the beginning stays behind.
    Shortcut copy() const { return {_keyCode, _modifierFlags}; }

    /// "{key=F5[96], flags=⌘}".
    QString description() const;

    /// Nothing where the keyboard layout has no name for the key.
    const std::optional<QString> &keyCodeString() const { return _keyCodeString; }

    /// The character that a menu item has for its key: of the function-key characters (NSEvent.h) for keys
    /// that type none.
    std::optional<QString> keyEquivalentString() const;

    std::uint64_t keyCode() const { return _keyCode; }
    ModifierFlags modifierFlags() const { return _modifierFlags; }

private:
    std::optional<QString> _keyCodeString;
    std::uint64_t _keyCode;
    ModifierFlags _modifierFlags;
};

} // namespace barquell
