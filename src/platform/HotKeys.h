#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace barquell {

/// Names a hot key: a four-character code of the application and a number of its own.
struct HotKeyId {
    std::uint32_t signature = 0;
    std::uint32_t number = 0;

    bool operator==(const HotKeyId &) const = default;
};

/// Modifiers of a hot key, as the bits of Carbon's event record (HIToolbox/Events.h).
using HotKeyModifiers = std::uint32_t;
inline constexpr HotKeyModifiers kHotKeyCommand = 0x100;   // cmdKey
inline constexpr HotKeyModifiers kHotKeyShift = 0x200;     // shiftKey
inline constexpr HotKeyModifiers kHotKeyAlphaLock = 0x400; // alphaLock
inline constexpr HotKeyModifiers kHotKeyOption = 0x800;    // optionKey
inline constexpr HotKeyModifiers kHotKeyControl = 0x1000;  // controlKey

/// A status of the system: 0 is success, anything else is the system's own number for what went wrong.
using HotKeyStatus = int;
inline constexpr HotKeyStatus kHotKeySuccess = 0; // noErr

/// A key combination held system-wide; its destruction releases it. macOS: EventHotKeyRef.
class HotKey {
public:
    virtual ~HotKey() = default;

    /// Releases the combination now and says how that went; to be called once. macOS: UnregisterEventHotKey.
    virtual HotKeyStatus unregister() = 0;

protected:
    HotKey() = default;
    HotKey(const HotKey &) = default;
    HotKey &operator=(const HotKey &) = default;
};

/// Key combinations that reach this process whichever application is in front. Main thread only.
class HotKeys {
public:
    /// Called from the main run loop for each press, auto-repeat excluded, also while a menu or a modal loop
    /// runs. False passes the press on to whoever else wants it.
    using Handler = std::function<bool(HotKeyId)>;

    struct Registration {
        HotKeyStatus status = kHotKeySuccess;
        std::unique_ptr<HotKey> hotKey; ///< none where the status is no success
    };

    virtual ~HotKeys() = default;

    /// To be called once, before the first registration.
    /// macOS: InstallEventHandler(GetApplicationEventTarget(), …, {kEventClassKeyboard,
    /// kEventHotKeyPressed}).
    virtual HotKeyStatus installHandler(Handler handler) = 0;

    /// The key code is virtual (see KeyboardLayout). Exclusive: fails where anyone, this process included,
    /// holds the combination already. macOS: RegisterEventHotKey, kEventHotKeyExclusive.
    virtual Registration registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id,
                                        bool exclusive) = 0;

protected:
    HotKeys() = default;
    HotKeys(const HotKeys &) = default;
    HotKeys &operator=(const HotKeys &) = default;
};

} // namespace barquell
