#pragma once

#include "platform/Workspace.h"
#include "platform/linux/desktop/DesktopEntries.h"
#include "platform/linux/x11/WindowFacts.h"

namespace barquell {

/// The application that a window belongs to: the one that its toolkit names, else the sandbox (flatpak, snap)
/// that its process lives in, else the one whose entry knows the window's class, else the one that its
/// process was started as. Own windows are this application's. Without an entry it has no identifier.
RunningApplication applicationOfWindow(const WindowFacts &window, DesktopEntries &entries,
                                       const QString &processes = QStringLiteral("/proc"));

} // namespace barquell
