#include "platform/linux/tapd/service/DeadMansTimer.h"

#include <sys/time.h>

namespace barquell::tapd {

const DeadMansTimer *DeadMansTimer::_current = nullptr;

DeadMansTimer::DeadMansTimer(std::chrono::microseconds limit, const SystemLog &log, std::string_view lastLine)
    : _limit(limit), _log(log), _lastLine(SystemLog::ready(lastLine)) {
    _current = this;
    struct sigaction action {};
    action.sa_handler = end;
    ::sigaction(SIGALRM, &action, &_before);
    sigset_t alarm; // whoever started us may have blocked it
    ::sigemptyset(&alarm);
    ::sigaddset(&alarm, SIGALRM);
    ::sigprocmask(SIG_UNBLOCK, &alarm, nullptr);
}

DeadMansTimer::~DeadMansTimer() {
    stop();
    ::sigaction(SIGALRM, &_before, nullptr);
    _current = nullptr;
}

void DeadMansTimer::set(std::chrono::microseconds time) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    itimerval setting{};
    setting.it_value.tv_sec = seconds.count();
    setting.it_value.tv_usec = (time - seconds).count();
    ::setitimer(ITIMER_REAL, &setting, nullptr); // CLOCK_MONOTONIC, see kernel/time/itimer.c
}

/// In the middle of anything, so this takes no lock and no memory, and runs no destructor.
void DeadMansTimer::end(int /*signal*/) {
    _current->_log.write(_current->_lastLine);
    ::_exit(1);
}

} // namespace barquell::tapd
