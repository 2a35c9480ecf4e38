#include "foundation/QtRunLoop.h"

#include <QTimer>

namespace barquell {

namespace {

class QtRepeatingTimer final : public RunLoop::Timer {
public:
    QtRepeatingTimer(std::chrono::milliseconds interval, std::function<void()> task) {
        // Nobody waits for a repetition on the millisecond, and a coarse timer lets the machine sleep.
        _timer.setTimerType(Qt::VeryCoarseTimer);
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
    QTimer::singleShot(delay, &_context, [task = std::move(task)] { perform(task); });
}

std::unique_ptr<RunLoop::Timer> QtRunLoop::scheduleRepeating(std::chrono::milliseconds interval, Task task) {
    return std::make_unique<QtRepeatingTimer>(interval, [task = std::move(task)] { perform(task); });
}

} // namespace barquell
