#include "platform/linux/client/TapServerClient.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/linux/client/ServerEvent.h"

#include <QFileInfo>

#include <algorithm>

namespace barquell {

using namespace std::chrono_literals;
using protocol::ClientMessage;
using protocol::ClientMessageType;
using protocol::Refusal;
using protocol::ServerMessage;
using protocol::ServerMessageType;

namespace {

// How soon a server that is away or busy is tried again, at first and at the most.
constexpr std::chrono::seconds kFirstPause = 5s;
constexpr std::chrono::seconds kLongestPause = 5min;

} // namespace

class TapServerClient::Tap final : public EventTap {
public:
    Tap(TapServerClient &client, EventMask mask, EventTapCallback callback)
        : _client(client), _mask(mask), _callback(callback) {
        _client._tap = this;
    }

    ~Tap() override {
        _client._tap = nullptr;
        if (_client._remote == Remote::Installed) {
            _client._remote = Remote::None;
            _client.send({.type = ClientMessageType::DestroyTap});
        }
    }

    Tap(const Tap &) = delete;
    Tap &operator=(const Tap &) = delete;

    void setEnabled(bool enabled) override {
        _enabled = enabled;
        tellEnabled();
    }

    std::unique_ptr<EventTapSource> createRunLoopSource() override;

    /// Tells the server, once it has the tap.
    void tellEnabled() {
        if (_client._remote == Remote::Installed) {
            _client.send({.type = ClientMessageType::SetEnabled, .on = _enabled ? 1U : 0U});
        }
    }

    EventMask mask() const { return _mask; }

    /// Passes what it is not meant for.
    bool passes(EventType type, ServerEvent &event) {
        const bool wanted = _attached && _enabled && (_mask & maskOf(type)) != 0;
        return !wanted || _callback(type, &event) != nullptr;
    }

    void tellTimeout() {
        if (_attached) {
            _callback(EventType::TapDisabledByTimeout, nullptr);
        }
    }

    void attach(bool attached) { _attached = attached; }

private:
    TapServerClient &_client;
    EventMask _mask;
    EventTapCallback _callback;
    bool _enabled = false;
    bool _attached = false;
};

class TapServerClient::Source final : public EventTapSource {
public:
    explicit Source(Tap &tap) : _tap(tap) {}
    ~Source() override { _tap.attach(false); }
    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;

    void addToMainRunLoop() override { _tap.attach(true); }

private:
    Tap &_tap;
};

std::unique_ptr<EventTapSource> TapServerClient::Tap::createRunLoopSource() {
    return std::make_unique<Source>(*this);
}

TapServerClient::TapServerClient(QString socketPath, const AccessibilityTrust &trust, GrantClient &grant)
    : _socketPath(std::move(socketPath)), _trust(trust), _grant(grant), _pause(kFirstPause),
      _alive(std::make_shared<char>()) {
    QObject::connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_watcher, [this] {
        if (_tap && !_connection) {
            connect();
        }
    });
}

TapServerClient::~TapServerClient() = default;

std::unique_ptr<EventTap> TapServerClient::create(EventMask mask, EventTapCallback callback) {
    if (!_trust.isProcessTrusted()) {
        _grant.request();
        return nullptr;
    }
    if (_tap) {
        return nullptr;
    }
    auto tap = std::make_unique<Tap>(*this, mask, callback);
    ++_made;
    if (!_connection) {
        connect();
    } else if (_remote == Remote::None) {
        askForTap();
    }
    return tap;
}

void TapServerClient::connect() {
    const QString folder = QFileInfo(_socketPath).path();
    if (_watcher.directories().isEmpty() && QFileInfo::exists(folder)) {
        _watcher.addPath(folder);
    }
    _remote = Remote::None;
    _connection = TapConnection::open(
        _socketPath, ClientMessageType::Hello, [this](const ServerMessage &message) { handle(message); },
        [this] { serverWentAway(); });
    if (_connection) {
        askForTap();
    } else {
        complainOfSilence(QStringLiteral("The tap server does not answer; touches pass until it does"));
        tryAgainLater();
    }
}

void TapServerClient::askForTap() {
    _remote = Remote::Asked;
    _asked = _made;
    send({.type = ClientMessageType::CreateTap, .eventMask = _tap->mask()});
}

void TapServerClient::tryAgainLater() {
    if (std::exchange(_tryingAgain, true)) {
        return;
    }
    RunLoop::main().performAfter(_pause, [this, alive = std::weak_ptr<char>(_alive)] {
        if (alive.expired()) {
            return;
        }
        _tryingAgain = false;
        _pause = std::min(2 * _pause, kLongestPause);
        if (_tap && !_connection) {
            connect();
        } else if (_tap && _remote == Remote::None) {
            askForTap();
        }
    });
}

void TapServerClient::complain(const QString &line) {
    if (!_complaints.contains(line)) {
        _complaints.append(line);
        log(line);
    }
}

/// Where a reason was given already, that the server is away tells nothing new.
void TapServerClient::complainOfSilence(const QString &line) {
    if (_complaints.isEmpty()) {
        complain(line);
    }
}

void TapServerClient::serverWentAway() {
    _connection.reset();
    _remote = Remote::None;
    if (_tap) {
        complainOfSilence(QStringLiteral("The tap server went away; touches pass until it is back"));
        tryAgainLater();
    }
}

void TapServerClient::handle(const ServerMessage &message) {
    switch (message.type) {
    case ServerMessageType::Welcome:
    case ServerMessageType::FlagsChanged:
        handleFlags(message.flags);
        break;
    case ServerMessageType::TapCreated:
        handleTapCreated();
        break;
    case ServerMessageType::Frame:
        handleFrame(message);
        break;
    case ServerMessageType::DisabledByTimeout:
        if (_tap) {
            _tap->tellTimeout();
        }
        break;
    case ServerMessageType::Refused:
        handleRefusal(message);
        break;
    case ServerMessageType::Bars:
    case ServerMessageType::Granted:
    case ServerMessageType::Withdrawn:
        break;
    }
}

void TapServerClient::handleTapCreated() {
    const bool stillWanted = _tap && _asked == _made;
    if (!stillWanted) {
        _remote = Remote::None;
        send({.type = ClientMessageType::DestroyTap});
        if (_tap) {
            askForTap();
        }
        return;
    }
    _remote = Remote::Installed;
    _pause = kFirstPause;
    _tap->tellEnabled();
    if (!std::exchange(_complaints, {}).isEmpty()) {
        log(QStringLiteral("The tap server has installed the tap"));
    }
}

void TapServerClient::handleRefusal(const ServerMessage &message) {
    _remote = Remote::None;
    switch (message.reason) {
    case Refusal::Busy:
        complain(QStringLiteral("The tap server serves somebody else; touches pass until it is free"));
        tryAgainLater();
        break;
    case Refusal::Version:
        _pause = kLongestPause; // until either of the two is another program
        complain(QStringLiteral("The tap server speaks version %1 and not %2; touches pass")
                     .arg(message.version)
                     .arg(protocol::kVersion));
        break;
    case Refusal::NotGranted:
        complain(QStringLiteral("The tap server has no grant of this user; touches pass until it has"));
        break;
    case Refusal::Malformed:
    case Refusal::Denied:
    case Refusal::NoAnswer:
    case Refusal::Failed:
        complain(QStringLiteral("The tap server did not understand; touches pass"));
        break;
    }
}

void TapServerClient::handleFrame(const ServerMessage &message) {
    ServerEvent event(message);
    const bool passes = !_tap || _tap->passes(EventType::Gesture, event);
    send({.type = ClientMessageType::Verdict, .on = passes ? 1U : 0U, .frame = message.frame});
}

void TapServerClient::handleFlags(ModifierFlags flags) {
    const bool changed = std::exchange(_flags, flags) != flags;
    if (_tap && changed) {
        ServerEvent event(flags);
        _tap->passes(EventType::FlagsChanged, event);
    }
}

void TapServerClient::send(const ClientMessage &message) {
    if (_connection) {
        _connection->send(message);
    }
}

} // namespace barquell
