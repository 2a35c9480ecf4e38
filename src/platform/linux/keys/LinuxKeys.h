#pragma once

#include "platform/linux/keys/NativeKeyEvents.h"
#include "platform/linux/keys/RunningKeymap.h"
#include "platform/linux/keys/XkbKeyboardLayout.h"

#include "platform/HotKeys.h"

#include <memory>

namespace barquell {

/// Everything about keys that the session offers: of X11 where that serves the windows, otherwise what can do
/// without. Needs the application; must outlive what uses it.
class LinuxKeys {
public:
    LinuxKeys();

    HotKeys &hotKeys() { return *_hotKeys; }
    KeyboardLayout &keyboardLayout() { return _keyboardLayout; }
    KeyEvents &keyEvents() { return _keyEvents; }

private:
    RunningKeymap _keymap;
    std::unique_ptr<HotKeys> _hotKeys;
    XkbKeyboardLayout _keyboardLayout;
    NativeKeyEvents _keyEvents;
};

} // namespace barquell
