#include "foundation/QtRunLoop.h"

#include <QTimer>

namespace barquell {

namespace {

/// A QTimer counts milliseconds in an int, which ends after 24.8 days.
constexpr std::chrono::hours kLongestTimer{24 * 24};

class QtTimer final : public RunLoop::Timer {
public:
    enum class Kind { Once, Repeating };

    QtTimer(Kind kind, std::chrono::milliseconds interval, std::function<void()> task) {
        _timer.setSingleShot(kind == Kind::Once);
        // Nobody waits for a repetition on the millisecond, and a coarse timer lets the machine sleep.
        _timer.setTimerType(kind == Kind::Once ? Qt::PreciseTimer : Qt::VeryCoarseTimer);
        QObject::connect(&_timer, &QTimer::timeout, &_timer, std::move(task));
        _timer.start(interval);
    }

private:
    QTimer _timer;
};

} // namespace

void QtRunLoop::performAsync(Task task) {
    QMetaObject::invokeMethod(
        &_context, [task = std::move(task)] { perform(task); }, Qt::QueuedConnection);
}

void QtRunLoop::performAfter(std::chrono::milliseconds delay, Task task) {
    if (delay > kLongestTimer) {
        performAfter(kLongestTimer, [this, rest = delay - kLongestTimer, task = std::move(task)] {
            performAfter(rest, task);
        });
        return;
    }
    QTimer::singleShot(delay, &_context, [task = std::move(task)] { perform(task); });
}

std::unique_ptr<RunLoop::Timer> QtRunLoop::scheduleOnce(std::chrono::milliseconds delay, Task task) {
    return std::make_unique<QtTimer>(QtTimer::Kind::Once, delay, [task = std::move(task)] { perform(task); });
}

std::unique_ptr<RunLoop::Timer> QtRunLoop::scheduleRepeating(std::chrono::milliseconds interval, Task task) {
    return std::make_unique<QtTimer>(QtTimer::Kind::Repeating, interval,
                                     [task = std::move(task)] { perform(task); });
}

} // namespace barquell
