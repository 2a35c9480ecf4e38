#include "platform/linux/session/TerminationSignals.h"

#include <sys/eventfd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace barquell {

namespace {

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

// A handler may touch little more than this. Masks and signalfd would not do: the threads of the windowing
// and bus libraries are made earlier, and what we start would inherit the mask.
volatile std::sig_atomic_t caughtDescriptor = -1;

void noteSignal(int /*number*/) {
    const int error = errno; // of whatever was interrupted
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(caughtDescriptor, &one, sizeof one);
    errno = error;
}

std::array<struct sigaction, kSignals.size()> previousActions{};

/// What is ignored stays so: nohup starts us that way.
void takeSignals() {
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals.at(i), nullptr, &previousActions.at(i));
        if (previousActions.at(i).sa_handler != SIG_IGN) { // NOLINT(performance-no-int-to-ptr): the system's
            sigaction(kSignals.at(i), &action, nullptr);
        }
    }
}

void giveSignalsBack() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals.at(i), &previousActions.at(i), nullptr);
    }
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> onSignal)
    : _caught(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      _notifier(std::make_unique<QSocketNotifier>(_caught.get(), QSocketNotifier::Read)) {
    QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(),
                     [this, onSignal = std::move(onSignal)] {
                         std::uint64_t count = 0;
                         if (::read(_caught.get(), &count, sizeof count) == sizeof count) {
                             onSignal();
                         }
                     });
    caughtDescriptor = _caught.get();
    takeSignals();
}

TerminationSignals::~TerminationSignals() {
    giveSignalsBack();
    caughtDescriptor = -1;
}

} // namespace barquell
