#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/statusbar/NotifierWatcher.h"

namespace barquell {

/// The status bar of a Linux desktop: whatever panel shows status items of the session bus, else the X11
/// tray, which is all that is left while there is no bus. Main thread only; must outlive its items. Needs a
/// QApplication.
class DesktopStatusBar final : public StatusBar {
public:
    /// The bus must outlive the status bar.
    explicit DesktopStatusBar(MessageBus &bus);

    std::unique_ptr<StatusBarItem> createItem() override;

    /// Known only after the event loop has run for a moment; false until then.
    bool hasHost() const override;

private:
    NotifierWatcher _watcher;
};

} // namespace barquell
