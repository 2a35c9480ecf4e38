#include "platform/linux/tapd/service/Daemon.h"
#include "platform/linux/tapd/service/GrantTasks.h"
#include "platform/linux/tapd/service/SystemLog.h"

#include <csignal>
#include <cstdio>

namespace {

using namespace barquell;
using namespace barquell::tapd;

int serve(const Options &options) {
    std::signal(SIGPIPE, SIG_IGN); // whoever reads our lines may go
    SystemLog log;
    std::string problem;
    const bool handedOver = Listener::isHandedOver();
    auto listener = handedOver ? Listener::take(problem) : Listener::open(options.socket, problem);
    if (!listener) {
        log.line(problem);
        return 1;
    }
    const std::string path = listener->path();
    Daemon daemon(std::move(*listener), grantsOf(options), log);
    if (!daemon.start()) {
        log.line("cannot start: the kernel grants no watch for devices, signals, time or clients");
        return 1;
    }
    if (handedOver) {
        daemon.endWhenIdle();
    }
    log.line("listening at " + path);
    log.line(daemon.run() == Daemon::End::Idle ? "nobody needs it any more" : "asked to end");
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    const auto options = optionsFrom(argc, argv);
    if (!options) {
        return 2;
    }
    switch (options->task) {
    case Task::Help:
        std::fputs(kUsage, stdout);
        return 0;
    case Task::Version:
        std::puts("barquell-tapd " BARQUELL_VERSION);
        return 0;
    case Task::Grant:
    case Task::Withdraw:
        return changeGrant(*options);
    case Task::Serve:
        break;
    }
    return serve(*options);
}
