#include "platform/linux/tapd/service/Daemon.h"
#include "platform/linux/tapd/service/SystemLog.h"

#include <csignal>
#include <cstdio>

int main(int argc, char **argv) {
    using namespace barquell::tapd;
    const auto options = optionsFrom(argc, argv);
    if (!options) {
        return 2;
    }
    if (options->task == Task::Help) {
        std::fputs(kUsage, stdout);
        return 0;
    }
    if (options->task == Task::Version) {
        std::puts("barquell-tapd " BARQUELL_VERSION);
        return 0;
    }
    std::signal(SIGPIPE, SIG_IGN); // whoever reads our lines may go
    SystemLog log;
    std::string problem;
    auto listener = Listener::open(options->socket, problem);
    if (!listener) {
        log.line(problem);
        return 1;
    }
    Daemon daemon(std::move(*listener), log);
    if (!daemon.start()) {
        log.line("cannot watch for input devices");
        return 1;
    }
    log.line("listening at " + options->socket.path);
    daemon.run();
    log.line("asked to end");
    return 0;
}
