#pragma once

#include "foundation/RunLoop.h"

#include <cstdint>
#include <map>
#include <utility>

namespace barquell {

/// A run loop whose clock stands still until it is told to go on: for tests and for the replay of recordings.
class VirtualRunLoop final : public RunLoop {
public:
    void performAsync(Task task) override;
    void performAfter(std::chrono::milliseconds delay, Task task) override;
    std::unique_ptr<Timer> scheduleOnce(std::chrono::milliseconds delay, Task task) override;
    std::unique_ptr<Timer> scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    QDateTime wallClock() const override;

    /// Time since the loop began.
    std::chrono::microseconds now() const { return _now; }

    /// Sets the clock, which goes on with the loop's time; nothing falls due by it. It begins with the year
    /// 2024.
    void setWallClock(const QDateTime &time);

    /// Runs what is due now, and what that schedules for now.
    void runPending() { advanceTo(_now); }

    /// Lets time pass and runs everything that falls due on the way, in its order. A time already past
    /// changes nothing but runs what is pending.
    void advanceTo(std::chrono::microseconds time);
    void advanceBy(std::chrono::microseconds duration) { advanceTo(_now + duration); }

private:
    class OneShotTimer;
    class RepeatingTimer;
    using Position = std::pair<std::chrono::microseconds, std::uint64_t>; // when, then in the order scheduled

    Position schedule(std::chrono::microseconds delay, Task task);

    std::chrono::microseconds _now{0};
    QDateTime _dateAtBegin{QDate(2024, 1, 1), QTime(0, 0), Qt::UTC};
    std::uint64_t _scheduled = 0;
    std::map<Position, Task> _tasks;
};

} // namespace barquell
