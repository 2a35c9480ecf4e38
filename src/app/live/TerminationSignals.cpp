#include "app/live/TerminationSignals.h"

#include <sys/signalfd.h>

#include <csignal>

namespace barquell {

namespace {

sigset_t terminationSignals() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGHUP);
    return set;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> onSignal) {
    const sigset_t set = terminationSignals();
    sigprocmask(SIG_BLOCK, &set, nullptr);
    _signals = FileDescriptor(signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
    _notifier = std::make_unique<QSocketNotifier>(_signals.get(), QSocketNotifier::Read);
    QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(),
                     [this, onSignal = std::move(onSignal)] {
                         signalfd_siginfo info;
                         if (::read(_signals.get(), &info, sizeof info) == sizeof info) {
                             onSignal();
                         }
                     });
}

TerminationSignals::~TerminationSignals() {
    const sigset_t set = terminationSignals();
    sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

} // namespace barquell
