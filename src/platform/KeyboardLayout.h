#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace barquell {

/// What is printed on the keys. Keys are named by virtual key codes: positions on an ANSI keyboard, numbered
/// as in HIToolbox/Events.h (kVK_ANSI_A is 0), whichever layout is in use.
class KeyboardLayout {
public:
    virtual ~KeyboardLayout() = default;

    /// What the key types without modifiers in the first layout that can type ASCII, a dead key its spacing
    /// form; nothing where there is no layout or it has no such key. Asked anew each time, since the user
    /// changes layouts. Main thread only. macOS: TISCopyCurrentASCIICapableKeyboardInputSource,
    /// UCKeyTranslate with kUCKeyActionDisplay and kUCKeyTranslateNoDeadKeysMask.
    virtual std::optional<QString> displayName(std::uint16_t keyCode) const = 0;

protected:
    KeyboardLayout() = default;
    KeyboardLayout(const KeyboardLayout &) = default;
    KeyboardLayout &operator=(const KeyboardLayout &) = default;
};

} // namespace barquell
