#include "foundation/VirtualRunLoop.h"

#include <algorithm>
#include <optional>

namespace barquell {

class VirtualRunLoop::OneShotTimer final : public RunLoop::Timer {
public:
    OneShotTimer(VirtualRunLoop &loop, std::chrono::microseconds delay, Task task) : _loop(loop) {
        // The loop holds the task while it runs, so it may destroy this timer.
        _position = _loop.schedule(delay, [this, task = std::move(task)] {
            _position.reset();
            task();
        });
    }

    ~OneShotTimer() override {
        if (_position) {
            _loop._tasks.erase(*_position);
        }
    }

    OneShotTimer(const OneShotTimer &) = delete;
    OneShotTimer &operator=(const OneShotTimer &) = delete;

private:
    VirtualRunLoop &_loop;
    std::optional<Position> _position; // while it waits
};

class VirtualRunLoop::RepeatingTimer final : public RunLoop::Timer {
public:
    RepeatingTimer(VirtualRunLoop &loop, std::chrono::microseconds interval, Task task)
        : _loop(loop), _interval(interval), _task(std::make_shared<Task>(std::move(task))) {
        arm();
    }

    ~RepeatingTimer() override { _loop._tasks.erase(_position); }

    RepeatingTimer(const RepeatingTimer &) = delete;
    RepeatingTimer &operator=(const RepeatingTimer &) = delete;

private:
    void arm() {
        _position = _loop.schedule(_interval, [this] { fire(); });
    }

    void fire() {
        arm();
        const std::shared_ptr<Task> running = _task; // the task may destroy this timer
        (*running)();
    }

    VirtualRunLoop &_loop;
    std::chrono::microseconds _interval;
    std::shared_ptr<Task> _task;
    Position _position;
};

void VirtualRunLoop::performAsync(Task task) {
    schedule(std::chrono::microseconds(0), std::move(task));
}

void VirtualRunLoop::performAfter(std::chrono::milliseconds delay, Task task) {
    schedule(delay, std::move(task));
}

std::unique_ptr<RunLoop::Timer> VirtualRunLoop::scheduleOnce(std::chrono::milliseconds delay, Task task) {
    return std::make_unique<OneShotTimer>(*this, delay, std::move(task));
}

std::unique_ptr<RunLoop::Timer> VirtualRunLoop::scheduleRepeating(std::chrono::milliseconds interval,
                                                                  Task task) {
    return std::make_unique<RepeatingTimer>(*this, interval, std::move(task));
}

QDateTime VirtualRunLoop::wallClock() const {
    return _dateAtBegin.addMSecs(std::chrono::floor<std::chrono::milliseconds>(_now).count());
}

void VirtualRunLoop::setWallClock(const QDateTime &time) {
    _dateAtBegin = _dateAtBegin.addMSecs(wallClock().msecsTo(time));
}

void VirtualRunLoop::advanceTo(std::chrono::microseconds time) {
    while (!_tasks.empty() && _tasks.begin()->first.first <= std::max(time, _now)) {
        auto due = _tasks.extract(_tasks.begin());
        _now = std::max(_now, due.key().first);
        perform(due.mapped());
    }
    _now = std::max(_now, time);
}

VirtualRunLoop::Position VirtualRunLoop::schedule(std::chrono::microseconds delay, Task task) {
    const Position position{_now + delay, _scheduled++};
    _tasks.emplace(position, std::move(task));
    return position;
}

} // namespace barquell
