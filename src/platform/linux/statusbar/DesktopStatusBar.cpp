#include "platform/linux/statusbar/DesktopStatusBar.h"

#include "foundation/Log.h"
#include "platform/linux/statusbar/DesktopStatusBarItem.h"
#include "platform/linux/statusbar/TrayItem.h"

namespace barquell {

DesktopStatusBar::DesktopStatusBar() : _watcher(QDBusConnection::sessionBus()) {}

std::unique_ptr<StatusBarItem> DesktopStatusBar::createItem() {
    if (!QDBusConnection::sessionBus().isConnected()) {
        log(QStringLiteral("There is no session bus: the status item is left to the X11 tray"));
    }
    return std::make_unique<DesktopStatusBarItem>(_watcher);
}

bool DesktopStatusBar::hasHost() const {
    return _watcher.hasHost() || TrayItem::isTrayThere();
}

} // namespace barquell
