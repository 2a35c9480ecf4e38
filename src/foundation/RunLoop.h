#pragma once

#include <QDateTime>

#include <chrono>
#include <functional>
#include <memory>

namespace barquell {

/// The main thread's run loop: everything later happens through it. The real one is Qt's; tests and replays
/// run a virtual one. An exception that leaves a task is logged and ends there. Main thread only.
class RunLoop {
public:
    using Task = std::function<void()>;

    /// A scheduled timer; its destruction stops it, also from inside its own task.
    class Timer {
    public:
        virtual ~Timer() = default;

    protected:
        Timer() = default;
        Timer(const Timer &) = default;
        Timer &operator=(const Timer &) = default;
    };

    virtual ~RunLoop() = default;

    /// Once, after what has been scheduled so far (dispatch_async to the main queue).
    virtual void performAsync(Task task) = 0;

    /// Once, after the delay (dispatch_after on the main queue).
    virtual void performAfter(std::chrono::milliseconds delay, Task task) = 0;

    /// Once, after the delay, unless the timer was destroyed before (a timer added to the main run loop for
    /// its common modes).
    [[nodiscard]] virtual std::unique_ptr<Timer> scheduleOnce(std::chrono::milliseconds delay, Task task) = 0;

    /// Again and again, first after one interval (scheduledTimerWithTimeInterval:repeats:block:).
    [[nodiscard]] virtual std::unique_ptr<Timer> scheduleRepeating(std::chrono::milliseconds interval,
                                                                   Task task) = 0;

    /// The date and time of day, in UTC. Unlike delays it can jump, when the clock is set or the machine
    /// slept.
    virtual QDateTime wallClock() const = 0;

    /// The main run loop: Qt's unless another was set.
    static RunLoop &main();

    /// nullptr restores Qt's. The loop must outlive what is scheduled on it.
    static void setMain(RunLoop *loop);

protected:
    RunLoop() = default;
    RunLoop(const RunLoop &) = default;
    RunLoop &operator=(const RunLoop &) = default;

    /// Runs a task of this loop and holds its exceptions back.
    static void perform(const Task &task);
};

} // namespace barquell
