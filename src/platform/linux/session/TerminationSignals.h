#pragma once

#include "platform/linux/FileDescriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace barquell {

/// Delivers SIGINT, SIGTERM and SIGHUP from the run loop while it lives, instead of ending the process; one
/// that was ignored before stays ignored. One at a time; threads that run already do no harm. Main thread
/// only.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    ~TerminationSignals();
    Q_DISABLE_COPY_MOVE(TerminationSignals)

private:
    FileDescriptor _caught;
    std::unique_ptr<QSocketNotifier> _notifier;
};

} // namespace barquell
