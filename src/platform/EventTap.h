#pragma once

#include "platform/Event.h"

#include <memory>

namespace barquell {

/// Called for each event that a tap's mask names, synchronously in the event's path: whoever waits for the
/// event waits for this. Returns the event to let it pass (changed or not), nullptr to swallow it. The event
/// is nullptr where the type is no event; the answer is then ignored. A plain function, so that a call
/// allocates nothing.
using EventTapCallback = Event *(*)(EventType type, Event *event);

/// The attachment of a tap to the main run loop; its destruction detaches it.
/// macOS: CFRunLoopSourceInvalidate, then CFRelease.
class EventTapSource {
public:
    virtual ~EventTapSource() = default;

    /// From here on the main run loop delivers, menus and modal loops included.
    /// macOS: CFRunLoopAddSource(CFRunLoopGetMain(), source, kCFRunLoopCommonModes).
    virtual void addToMainRunLoop() = 0;

protected:
    EventTapSource() = default;
    EventTapSource(const EventTapSource &) = default;
    EventTapSource &operator=(const EventTapSource &) = default;
};

/// One installed tap. While it is disabled every event passes it unseen. Its destruction removes it; that may
/// happen inside its own callback. Main thread only.
/// macOS: the CFMachPortRef; destruction is CFRelease.
class EventTap {
public:
    virtual ~EventTap() = default;

    /// macOS: CGEventTapEnable.
    virtual void setEnabled(bool enabled) = 0;

    /// nullptr where the system refuses. The tap outlives its source.
    /// macOS: CFMachPortCreateRunLoopSource(kCFAllocatorDefault, tap, 0).
    virtual std::unique_ptr<EventTapSource> createRunLoopSource() = 0;

protected:
    EventTap() = default;
    EventTap(const EventTap &) = default;
    EventTap &operator=(const EventTap &) = default;
};

/// Where taps come from.
class EventTaps {
public:
    virtual ~EventTaps() = default;

    /// Installs an active tap at the head of the session's event stream. nullptr where the system refuses;
    /// while the process is untrusted the system then also asks the user for access, without making us wait.
    /// Succeeds where no bar is plugged in. macOS: CGEventTapCreate(kCGSessionEventTap,
    /// kCGHeadInsertEventTap, kCGEventTapOptionDefault, mask, …).
    virtual std::unique_ptr<EventTap> create(EventMask mask, EventTapCallback callback) = 0;

    /// Whether a callback's changes to an event's flags reach the applications. macOS: true.
    virtual bool canChangeFlags() const = 0;

protected:
    EventTaps() = default;
    EventTaps(const EventTaps &) = default;
    EventTaps &operator=(const EventTaps &) = default;
};

} // namespace barquell
