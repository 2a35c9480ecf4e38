#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/statusbar/NotifierWatcher.h"

namespace barquell {

/// The status bar of a Linux desktop: whatever panel shows status items of the session bus, else the X11
/// tray. Without a session bus the tray alone is left, which is said in one line. Main thread only; must
/// outlive its items. Needs a QApplication.
class DesktopStatusBar final : public StatusBar {
public:
    DesktopStatusBar();

    std::unique_ptr<StatusBarItem> createItem() override;

    /// A panel that shows items of the bus is known only after the event loop has run for a moment.
    bool hasHost() const override;

private:
    NotifierWatcher _watcher;
};

} // namespace barquell
