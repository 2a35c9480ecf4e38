#include "platform/linux/tapd/service/DeadlineTimer.h"

#include <sys/timerfd.h>

namespace barquell::tapd {

DeadlineTimer::DeadlineTimer() : _timer(::timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)) {}

void DeadlineTimer::update(std::optional<Time> deadline) {
    if (!deadline || (_set && *_set <= *deadline)) {
        return;
    }
    const auto time = deadline->time_since_epoch();
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    itimerspec setting{};
    setting.it_value.tv_sec = seconds.count();
    setting.it_value.tv_nsec = std::chrono::duration_cast<std::chrono::nanoseconds>(time - seconds).count();
    if (::timerfd_settime(_timer.get(), TFD_TIMER_ABSTIME, &setting, nullptr) == 0) {
        _set = deadline;
    }
}

void DeadlineTimer::read() {
    std::uint64_t times = 0;
    if (::read(_timer.get(), &times, sizeof times) > 0) {
        _set.reset();
    }
}

} // namespace barquell::tapd
