#pragma once

#include "platform/linux/tapd/service/Connection.h"
#include "platform/linux/tapd/service/DeadMansTimer.h"
#include "platform/linux/tapd/service/DeadlineTimer.h"
#include "platform/linux/tapd/service/InputDevices.h"
#include "platform/linux/tapd/service/KeptGrants.h"
#include "platform/linux/tapd/service/Listener.h"
#include "platform/linux/tapd/service/PolkitAuthority.h"
#include "platform/linux/tapd/service/SeatWatch.h"

namespace barquell::tapd {

/// The running service: one loop that brings what happens to the rules. It has one thread, whose signals it
/// blocks.
class Daemon {
public:
    Daemon(Listener listener, grant::GrantFolder grants, SystemLog &log);

    /// False where the system does not give what it takes.
    bool start();

    /// Whoever started us for a client starts us again for the next.
    void endWhenIdle() { _server.endWhenIdle(std::chrono::steady_clock::now()); }

    enum class End { Asked, Idle };
    /// Until a signal asks for the end, or nobody needs us. What gets stuck on the way ends the process.
    End run();

private:
    struct Client {
        Connection connection;
        bool wantsRoom = false;
    };

    std::optional<Time> deadline() const;
    void serve(const Ready &ready, Time now);
    void followTheSystem(Time now);
    void accept(Time now);
    void serveAuthority(int descriptor, Time now);
    void serveClient(const Ready &ready, Time now);
    void updateClients();

    DeadMansTimer _stuck;              // goes last
    std::optional<Listener> _listener; // until the end begins
    Poller _poller;
    FileDescriptor _signals;
    DeadlineTimer _timer;
    KeptGrants _grants;
    PolkitAuthority _authority;
    SeatWatch _seat;
    TapServer _server;
    InputDevices _devices; // goes before the server
    std::map<int, Client> _clients;
    bool _running = false;
};

} // namespace barquell::tapd
