#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <chrono>

namespace barquell::test {

/// Runs the event loop until the condition holds; false if it never does within the time.
template <typename Condition>
bool waitFor(const Condition &condition, std::chrono::milliseconds limit = std::chrono::seconds(20)) {
    const QDeadlineTimer deadline(limit);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 10);
    }
    return true;
}

/// Lets the event loop run for the whole time: for showing that nothing comes.
inline void runFor(std::chrono::milliseconds time) {
    waitFor([] { return false; }, time);
}

} // namespace barquell::test
