#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/core/Ports.h"

namespace barquell::tapd {

/// A timer that is at least as early as a deadline that moves with each frame. A deadline that moves later
/// leaves it as it is: programming a clock costs more than being woken once a second for nothing. One thread.
class DeadlineTimer {
public:
    DeadlineTimer();

    int descriptor() const { return _timer.get(); }

    /// From now on this is the deadline.
    void update(std::optional<Time> deadline);

    /// It has run out.
    void read();

private:
    FileDescriptor _timer;
    std::optional<Time> _set;
};

} // namespace barquell::tapd
