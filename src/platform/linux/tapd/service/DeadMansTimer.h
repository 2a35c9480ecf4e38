#pragma once

#include "platform/linux/tapd/service/SystemLog.h"

#include <chrono>
#include <csignal>

namespace barquell::tapd {

/// Ends the process, with a last line and status 1, where what was started does not stop within the limit:
/// the kernel then frees what we hold, and touches pass. It is for waits that nobody can bound, as looking a
/// user up or writing to a disk. Time in which the machine sleeps does not count. There is one at a time,
/// since it takes SIGALRM and the process's real-time timer; one thread.
class DeadMansTimer {
public:
    /// The log is kept.
    DeadMansTimer(std::chrono::microseconds limit, const SystemLog &log, std::string_view lastLine);
    ~DeadMansTimer();
    DeadMansTimer(const DeadMansTimer &) = delete;
    DeadMansTimer &operator=(const DeadMansTimer &) = delete;

    /// From now on the limit counts, again from its beginning.
    void start() const { set(_limit); }
    /// It does not count any more; nothing wakes anybody.
    void stop() const { set({}); }

private:
    static void set(std::chrono::microseconds time);
    static void end(int signal);

    static const DeadMansTimer *_current; // for the signal handler, which is given nothing

    std::chrono::microseconds _limit;
    const SystemLog &_log;
    SystemLog::Ready _lastLine;
    struct sigaction _before {};
};

} // namespace barquell::tapd
