#pragma once

#include "platform/KeyEvents.h"
#include "platform/linux/keys/RunningKeymap.h"

#include <functional>

namespace barquell {

/// Reads the native numbers of Qt's key events, which are the X server's under X11 and Wayland alike.
class NativeKeyEvents final : public KeyEvents {
public:
    /// What is known of the keyboard beyond one event: its layouts, and which keys are down. Either may know
    /// nothing.
    struct Keyboard {
        std::function<std::optional<Keymap>()> keymap;
        std::function<RunningKeymap::KeysDown()> keysDown;
    };
    explicit NativeKeyEvents(Keyboard keyboard) : _keyboard(std::move(keyboard)) {}

    /// Nothing as well for keys that have no virtual code.
    std::optional<KeyEvent> keyEvent(const QKeyEvent &event, KeyMeanings meanings) const override;
    void beep() override;

private:
    ModifierFlags flagsAfter(const QKeyEvent &event, KeyMeanings meanings) const;
    QString characters(const QKeyEvent &event, XKeyCode key) const;

    Keyboard _keyboard;
};

} // namespace barquell
