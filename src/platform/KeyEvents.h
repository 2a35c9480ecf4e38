#pragma once

#include "platform/ModifierFlags.h"

#include <QString>

#include <cstdint>
#include <optional>

class QKeyEvent;

namespace barquell {

/// One key event of our own windows, in the terms of shortcuts.
struct KeyEvent {
    enum class Type {
        KeyDown,      ///< NSEventTypeKeyDown
        FlagsChanged, ///< NSEventTypeFlagsChanged: a modifier went down or up; the flags are those after it
    };

    Type type = Type::KeyDown;
    std::uint16_t keyCode = 0; ///< virtual, see KeyboardLayout
    ModifierFlags modifierFlags = 0;
    QString charactersIgnoringModifiers; ///< of the layout in use, as if no modifier but Shift were held
    bool isARepeat = false;
};

/// Which modifiers count for what in keys of our own windows. A recorder of global shortcuts wants the
/// physical ones (Super is Command), the keys of a window those of the desktop (Control is Command).
enum class KeyMeanings { Physical, Window };

/// Reads what the windowing system says about keys, and the beep. Main thread only.
class KeyEvents {
public:
    virtual ~KeyEvents() = default;

    /// Nothing for releases of ordinary keys, which mean nothing here. macOS: the NSEvent behind Qt's.
    virtual std::optional<KeyEvent> keyEvent(const QKeyEvent &event, KeyMeanings meanings) const = 0;

    /// Whether the toolkit's Control is the key Command here and its Meta the key Control, so that the
    /// shortcuts of our windows are those of the desktop. macOS: true, by Qt.
    virtual bool exchangesControlAndCommand() const { return false; }

    /// macOS: NSBeep.
    virtual void beep() = 0;

protected:
    KeyEvents() = default;
    KeyEvents(const KeyEvents &) = default;
    KeyEvents &operator=(const KeyEvents &) = default;
};

} // namespace barquell
