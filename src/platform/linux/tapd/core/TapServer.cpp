#include "platform/linux/tapd/core/TapServer.h"

#include <algorithm>

namespace barquell::tapd {

using protocol::ClientMessage;
using protocol::ClientMessageType;
using protocol::Refusal;

namespace {

constexpr std::string_view kTooMany = "refused, too many clients";
constexpr std::string_view kTaken = "the tap is taken";

} // namespace

void TapServer::connected(ClientLink &link, Time now) {
    Client client(link, now);
    if (!hasRoomFor(link)) {
        client.refuse(Refusal::Busy);
        link.close();
        tell(link, kTooMany);
        return;
    }
    _clients.push_back(std::make_unique<Client>(client));
}

bool TapServer::hasRoomFor(const ClientLink &link) const {
    const auto ofTheUser = std::count_if(_clients.begin(), _clients.end(), [&link](const auto &client) {
        return client->link().user() == link.user();
    });
    return _clients.size() < kMaximumClients && static_cast<std::size_t>(ofTheUser) < kMaximumClientsOfAUser;
}

/// Once, until the user's clients fare better.
void TapServer::tell(const ClientLink &link, std::string_view what) {
    if (_told.isNews(link.user(), what)) {
        _log.line(link.name() + ": " + std::string(what));
    }
}

TapServer::Clients::iterator TapServer::find(const ClientLink &link) {
    return std::find_if(_clients.begin(), _clients.end(),
                        [&](const auto &client) { return &client->link() == &link; });
}

void TapServer::received(ClientLink &link, std::span<const std::byte> packet, Time now) {
    const auto client = find(link);
    if (client == _clients.end()) {
        return;
    }
    if (const auto message = protocol::decodeClientMessage(packet)) {
        handle(**client, *message, now);
    } else {
        refuse(**client, Refusal::Malformed, "dropped, sent a packet that means nothing", now);
    }
    publish();
}

void TapServer::handle(Client &client, const ClientMessage &message, Time now) {
    const bool isHello = message.type == ClientMessageType::Hello;
    if (isHello && message.version != protocol::kVersion) {
        refuse(client, Refusal::Version, "dropped, speaks another version", now);
    } else if (isHello == client.isWelcome()) {
        refuse(client, Refusal::Malformed, "dropped, said hello too late or twice", now);
    } else if (isHello) {
        if (!client.welcome(_state, _tap.holderFor(client))) {
            drop(client, "dropped, does not listen", now);
        }
    } else if (!handleTap(client, message, now)) {
        refuse(client, Refusal::Malformed, "dropped, spoke out of turn", now);
    }
}

/// False where the client may not say this now.
bool TapServer::handleTap(Client &client, const ClientMessage &message, Time now) {
    if (message.type == ClientMessageType::CreateTap) {
        createTap(client, message.eventMask, now);
        return true;
    }
    if (!_tap.isOpenFor(client)) {
        // A client may still answer what it has read.
        return message.type == ClientMessageType::Verdict && _tap.isPast(message.frame);
    }
    switch (message.type) {
    case ClientMessageType::SetEnabled:
        _tap.setEnabled(message.on != 0);
        return true;
    case ClientMessageType::Verdict:
        return _tap.judge(message.frame, message.on != 0);
    case ClientMessageType::DestroyTap:
        closeTap(now);
        return true;
    default:
        return false;
    }
}

void TapServer::createTap(Client &client, EventMask mask, Time now) {
    if (_tap.isOpen()) {
        client.refuse(Refusal::Busy);
        tell(client.link(), kTaken);
        return;
    }
    _tap.open(client, mask);
    _told.forget(client.link().user());
    _log.line(client.link().name() + ": has the tap");
    for (const auto &bar : _bars) {
        bar->retry(now); // where the tap before has just ended, it has been wanted all along
    }
    updateWanted(now);
    if (!client.tapCreated()) {
        drop(client, "dropped, does not listen", now);
    }
}

void TapServer::closeTap(Time now) {
    _tap.close();
    _told.forget(kTaken);
    _log.line("the tap has ended");
    _lingerUntil = now + std::chrono::microseconds(protocol::kGrabLinger);
    updateWanted(now);
}

void TapServer::refuse(Client &client, Refusal reason, std::string_view why, Time now) {
    client.refuse(reason);
    drop(client, why, now);
}

void TapServer::drop(Client &client, std::string_view why, Time now) {
    ClientLink &link = client.link();
    tell(link, why);
    forget(find(link), now);
    link.close();
}

void TapServer::forget(Clients::iterator client, Time now) {
    if (_tap.isOpenFor(**client)) {
        closeTap(now);
    }
    _clients.erase(client);
}

void TapServer::disconnected(ClientLink &link, Time now) {
    const auto client = find(link);
    if (client != _clients.end()) {
        forget(client, now);
        publish();
    }
}

void TapServer::writable(ClientLink &link) {
    const auto client = find(link);
    if (client != _clients.end()) {
        (*client)->settle(_state);
    }
}

bool TapServer::owes(const ClientLink &link) const {
    return std::any_of(_clients.begin(), _clients.end(),
                       [&](const auto &client) { return &client->link() == &link && client->owes(); });
}

bool TapServer::barAdded(const evdev::DeviceDescription &bar, BarPort &port, Time now) {
    if (_bars.size() == kMaximumBars) {
        _log.line(bar.name + ": left alone, there are too many bars");
        return false;
    }
    _bars.push_back(std::make_unique<BarRelay>(bar, port, _tap, _log));
    _log.line(bar.name + ": plugged in");
    updateWanted(now);
    publish();
    return true;
}

BarRelay *TapServer::relayOf(const BarPort &port) const {
    const auto bar =
        std::find_if(_bars.begin(), _bars.end(), [&](const auto &entry) { return &entry->port() == &port; });
    return bar == _bars.end() ? nullptr : bar->get();
}

void TapServer::barRead(BarPort &port, std::span<const evdev::InputEvent> events, Time now) {
    if (BarRelay *bar = relayOf(port)) {
        bar->read(events, now);
        publish();
    }
}

void TapServer::barRemoved(BarPort &port) {
    if (const BarRelay *bar = relayOf(port)) {
        _tap.forget(*bar);
        std::erase_if(_bars, [bar](const auto &entry) { return entry.get() == bar; });
        publish();
    }
}

void TapServer::cloneAppeared(BarPort &port, Time now) {
    if (BarRelay *bar = relayOf(port)) {
        bar->cloneAppeared(now);
        publish();
    }
}

bool TapServer::reads(const BarPort &port) const {
    const BarRelay *bar = relayOf(port);
    return bar && bar->needsEvents() && !_tap.isCrowded();
}

void TapServer::keyboardRead(int keyboard, std::span<const evdev::InputEvent> events) {
    _keyboards.read(keyboard, events);
    publish();
}

void TapServer::keyboardRemoved(int keyboard) {
    _keyboards.remove(keyboard);
    publish();
}

std::optional<Time> TapServer::deadline() const {
    std::optional<Time> earliest = _tap.deadline();
    const auto consider = [&earliest](Time time) { earliest = earliest ? std::min(*earliest, time) : time; };
    if (_lingerUntil) {
        consider(*_lingerUntil);
    }
    for (const auto &client : _clients) {
        if (!client->isWelcome()) {
            consider(client->helloDeadline());
        }
    }
    return earliest;
}

void TapServer::advance(Time now) {
    if (_tap.advance(now)) {
        _log.line("the tap is disabled, its client does not answer");
    }
    if (_lingerUntil && now >= *_lingerUntil) {
        _lingerUntil.reset();
        updateWanted(now);
    }
    const auto isLate = [now](const auto &client) {
        return !client->isWelcome() && now >= client->helloDeadline();
    };
    for (auto late = std::find_if(_clients.begin(), _clients.end(), isLate); late != _clients.end();
         late = std::find_if(_clients.begin(), _clients.end(), isLate)) {
        drop(**late, "dropped, said no hello", now);
    }
    publish();
}

void TapServer::updateWanted(Time now) {
    for (const auto &bar : _bars) {
        bar->setWanted(_tap.wantsBars() || _lingerUntil, now);
    }
}

/// Tells everybody what has changed of what everybody may know.
void TapServer::publish() {
    PublicState state;
    state.flags = _keyboards.flags();
    state.barsKnown = static_cast<std::uint16_t>(_bars.size());
    state.barsGrabbed = static_cast<std::uint16_t>(
        std::count_if(_bars.begin(), _bars.end(), [](const auto &bar) { return bar->isGrabbed(); }));
    const bool flagsChanged = state.flags != _state.flags;
    const bool barsChanged = state.barsKnown != _state.barsKnown || state.barsGrabbed != _state.barsGrabbed;
    _state = state;
    for (const auto &client : _clients) {
        if (client->isWelcome()) {
            client->owe(flagsChanged, barsChanged);
        }
        if (client->owes()) {
            client->settle(_state);
        }
    }
}

} // namespace barquell::tapd
