#pragma once

#include "platform/linux/x11/WindowFacts.h"

#include <QSocketNotifier>

#include <functional>

namespace barquell {

/// Which window is in front, as a window manager of today tells it (the Extended Window Manager Hints'
/// _NET_ACTIVE_WINDOW), heard by event. Managers may come, go and be replaced. Main thread only.
class FrontWindow {
public:
    /// Without a connection nothing is ever known. The handler is called after the window, or whether it is
    /// known, has changed; never from the constructor.
    FrontWindow(std::unique_ptr<XDesktop> connection, std::function<void()> onChange);

    /// A window manager runs that tells it.
    bool isKnown() const { return _manager != XCB_NONE; }

    /// Nothing where no window is in front or none is known.
    const std::optional<WindowFacts> &facts() const { return _facts; }

private:
    void readEvents();
    void readEventsLater();
    bool takeEvents(); ///< whether one of them concerns what is in front
    bool concerns(const xcb_generic_event_t &event) const;
    void look();
    xcb_window_t livingManager() const;

    std::unique_ptr<XDesktop> _x;
    std::unique_ptr<QSocketNotifier> _notifier;
    std::function<void()> _onChange;
    xcb_window_t _manager = XCB_NONE; // its own window, by which its end is noticed
    xcb_window_t _active = XCB_NONE;
    std::optional<WindowFacts> _facts;
};

} // namespace barquell
