#include "platform/linux/statusbar/DesktopStatusBar.h"

#include "platform/linux/statusbar/DesktopStatusBarItem.h"
#include "platform/linux/statusbar/TrayItem.h"

namespace barquell {

DesktopStatusBar::DesktopStatusBar(MessageBus &bus) : _watcher(bus) {}

std::unique_ptr<StatusBarItem> DesktopStatusBar::createItem() {
    return std::make_unique<DesktopStatusBarItem>(_watcher);
}

bool DesktopStatusBar::hasHost() const {
    // Not before: Qt asks for a panel of the bus as well, once, and one that it found would keep it off the
    // X11 tray for good.
    return _watcher.isKnown() && (_watcher.hasHost() || TrayItem::isTrayThere());
}

} // namespace barquell
