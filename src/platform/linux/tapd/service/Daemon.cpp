#include "platform/linux/tapd/service/Daemon.h"

#include <algorithm>
#include <csignal>
#include <sys/signalfd.h>
#include <thread>

namespace barquell::tapd {

namespace {

constexpr std::chrono::seconds kStuck{5}; // a turn takes some microseconds

std::string stuckLine() {
    return "stuck for " + std::to_string(kStuck.count()) + " s, ending so that touches pass";
}

FileDescriptor endSignals() {
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    ::sigaddset(&signals, SIGINT);
    ::sigaddset(&signals, SIGHUP); // a terminal that goes is no reason to end with a bar in hand
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    return FileDescriptor(::signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC));
}

} // namespace

Daemon::Daemon(Listener listener, grant::GrantFolder grants, SystemLog &log)
    : _stuck(kStuck, log, stuckLine()), _listener(std::move(listener)), _signals(endSignals()),
      _grants(std::move(grants)), _authority(_poller, log), _server(_grants, _authority, log),
      _devices(_server, _poller, log) {}

bool Daemon::start() {
    _running = _poller.add(Source::Signals, _signals.get()) &&
               _poller.add(Source::Timer, _timer.descriptor()) &&
               _poller.add(Source::Grants, _grants.descriptor()) &&
               _poller.add(Source::Listener, _listener->descriptor()) && _devices.start();
    followTheSystem(std::chrono::steady_clock::now());
    return _running;
}

/// The login manager and the folder of the grants may come after us.
void Daemon::followTheSystem(Time now) {
    if (_seat.follow() && _poller.add(Source::Seat, _seat.descriptor())) {
        _server.frontChanged(_seat.front(), now);
    }
    if (_grants.follow()) {
        _server.grantsChanged(now);
    }
}

/// Before the first turn there is no client, so nothing is held that somebody could miss.
Daemon::End Daemon::run() {
    bool idle = false;
    while (_running && !idle) {
        _devices.updateWanted();
        updateClients();
        _timer.update(deadline());
        _stuck.stop();
        const auto ready = _poller.wait();
        _stuck.start(); // until the next wait, or until nothing is left of us
        const Time now = std::chrono::steady_clock::now();
        for (const Ready &one : ready) {
            serve(one, now);
        }
        _server.advance(now);
        _devices.advance(now);
        idle = _server.isDone(now);
    }
    _devices.close();
    _listener.reset(); // the next server need not wait for our clones to go
    while (const auto last = _devices.deadline()) {
        std::this_thread::sleep_until(*last);
        _devices.advance(*last);
    }
    return idle ? End::Idle : End::Asked;
}

std::optional<Time> Daemon::deadline() const {
    const auto rules = _server.deadline();
    const auto devices = _devices.deadline();
    return rules && devices ? std::min(*rules, *devices) : rules ? rules : devices;
}

void Daemon::serve(const Ready &ready, Time now) {
    switch (ready.source) {
    case Source::Signals:
        _running = false;
        break;
    case Source::Timer:
        _timer.read();
        break;
    case Source::Seat:
        _seat.forgetChanges();
        _server.frontChanged(_seat.front(), now);
        break;
    case Source::Grants:
        _grants.forgetChanges();
        _server.grantsChanged(now);
        break;
    case Source::Authority:
        serveAuthority(ready.descriptor, now);
        break;
    case Source::Keyboard:
        _devices.readKeyboard(ready.descriptor);
        break;
    case Source::Client:
        serveClient(ready, now);
        break;
    case Source::Bar:
        _devices.readBar(ready.descriptor, now);
        break;
    case Source::Listener:
        accept(now);
        break;
    case Source::Devices:
        _devices.readWatch();
        break;
    }
}

void Daemon::serveAuthority(int descriptor, Time now) {
    if (const auto answered = _authority.proceed(descriptor)) {
        _server.answered(*answered->link, answered->answer, now); // which forgets the question
    }
}

void Daemon::accept(Time now) {
    followTheSystem(now);
    FileDescriptor socket = _listener->accept();
    const int key = socket.get();
    if (!socket.isValid() || !_poller.add(Source::Client, key)) {
        return;
    }
    const auto client = _clients.emplace(key, Client{Connection(std::move(socket))}).first;
    _server.connected(client->second.connection, now);
}

/// One packet a turn, so that a client that talks without end leaves the others theirs.
void Daemon::serveClient(const Ready &ready, Time now) {
    const auto client = _clients.find(ready.descriptor);
    if (client == _clients.end() || client->second.connection.isClosed()) {
        return;
    }
    Connection &connection = client->second.connection;
    if (ready.writable) {
        _server.writable(connection);
    }
    if (!ready.readable) {
        return;
    }
    Connection::Packet packet;
    std::size_t size = 0;
    switch (connection.receive(packet, size)) {
    case Connection::Received::Packet:
        _server.received(connection, std::span(packet).first(size), now);
        break;
    case Connection::Received::End:
        _server.disconnected(connection, now);
        connection.close();
        break;
    case Connection::Received::Nothing:
        break;
    }
}

void Daemon::updateClients() {
    std::erase_if(_clients, [](const auto &entry) { return entry.second.connection.isClosed(); });
    for (auto &[descriptor, client] : _clients) {
        const bool wantsRoom = _server.owes(client.connection);
        if (wantsRoom != client.wantsRoom) {
            _poller.want(Source::Client, descriptor, true, wantsRoom);
            client.wantsRoom = wantsRoom;
        }
    }
}

} // namespace barquell::tapd
