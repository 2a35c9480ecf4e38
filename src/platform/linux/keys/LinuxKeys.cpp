#include "platform/linux/keys/LinuxKeys.h"

#include "platform/linux/keys/NullHotKeys.h"
#include "platform/linux/keys/XHotKeys.h"

#include <QGuiApplication>

namespace barquell {

namespace {

/// Under Wayland an X server stands beside, whose grabs see the keys of X windows alone.
std::unique_ptr<HotKeys> makeHotKeys() {
    std::unique_ptr<HotKeys> keys;
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") &&
        QGuiApplication::platformName() == QStringLiteral("xcb")) {
        keys = XHotKeys::open();
    }
    return keys ? std::move(keys) : std::make_unique<NullHotKeys>();
}

} // namespace

LinuxKeys::LinuxKeys()
    : _hotKeys(makeHotKeys()), _keyboardLayout([this] { return _keymap.read(); }),
      _keyEvents({[this] { return _keymap.read(); }, [this] { return _keymap.keysDown(); }}) {}

} // namespace barquell
