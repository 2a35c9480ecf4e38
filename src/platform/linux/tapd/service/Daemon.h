#pragma once

#include "platform/linux/tapd/service/Connection.h"
#include "platform/linux/tapd/service/DeadlineTimer.h"
#include "platform/linux/tapd/service/InputDevices.h"
#include "platform/linux/tapd/service/Listener.h"

namespace barquell::tapd {

/// The running service: one loop that brings what happens to the rules. It has one thread, whose signals it
/// blocks.
class Daemon {
public:
    Daemon(Listener listener, Log &log);

    /// False where the system does not give what it takes.
    bool start();

    /// Until a signal asks for the end.
    void run();

private:
    struct Client {
        Connection connection;
        bool wantsRoom = false;
    };

    std::optional<Time> deadline() const;
    void serve(const Ready &ready, Time now);
    void accept(Time now);
    void serveClient(const Ready &ready, Time now);
    void updateClients();

    std::optional<Listener> _listener; // until the end begins
    Poller _poller;
    FileDescriptor _signals;
    DeadlineTimer _timer;
    TapServer _server;
    InputDevices _devices; // goes before the server
    std::map<int, Client> _clients;
    bool _running = false;
};

} // namespace barquell::tapd
