#pragma once

#include "platform/Event.h"

#include <QString>

#include <cstdint>
#include <string>

namespace barquell::replay {

/// Why an event went on or did not.
enum class Reason {
    BlockingOff,       ///< the user switched it off
    NotTrusted,        ///< the process may not filter
    Paused,            ///< a pause flag is set
    PauseKeyHeld,      ///< a touch, let through by a pause key
    NothingTouches,    ///< every touch of the frame has ended or was cancelled
    Touching,          ///< a touch while blocking is in force
    ModifiersStripped, ///< went on without the pause keys
    NotHeldBack,       ///< such events always go on
};

/// An event that was led through the tap, and what became of it.
struct ReplayedEvent {
    std::int64_t time; ///< microseconds, as recorded
    const std::string &device;
    EventType type;
    ModifierFlags flags; ///< with which it goes on
    int touches;         ///< fingers in the frame, those that just left included
    int touching;        ///< fingers on the bar
    bool passed;
    Reason reason;
};

struct ReplayedStateChange {
    std::int64_t time;
    int source;
    bool effectivelyEnabled;
};

/// Hears what happens in a replay, in its order.
class ReplayListener {
public:
    virtual ~ReplayListener() = default;

    virtual void event(const ReplayedEvent &event) = 0;
    virtual void stateChange(const ReplayedStateChange &change) = 0;
    virtual void logged(const QString &line) = 0;

protected:
    ReplayListener() = default;
    ReplayListener(const ReplayListener &) = default;
    ReplayListener &operator=(const ReplayListener &) = default;
};

} // namespace barquell::replay
