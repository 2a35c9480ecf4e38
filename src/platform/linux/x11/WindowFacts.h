#pragma once

#include "platform/linux/x11/XDesktop.h"

#include <QString>

namespace barquell {

/// What a window says of the program that it belongs to; empty or 0 where it says nothing.
struct WindowFacts {
    QString applicationId; ///< the toolkit's own word for it, an entry's id
    QString className;     ///< "XTerm"
    QString instanceName;  ///< "xterm"
    qint64 processId = 0;  ///< only of a process on this machine

    bool operator==(const WindowFacts &) const = default;
};

WindowFacts readWindowFacts(const XDesktop &x, xcb_window_t window);

} // namespace barquell
