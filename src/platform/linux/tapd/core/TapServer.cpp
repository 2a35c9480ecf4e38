#include "platform/linux/tapd/core/TapServer.h"

#include <algorithm>

namespace barquell::tapd {

using protocol::ClientMessage;
using protocol::ClientMessageType;
using protocol::Refusal;
using protocol::ServerMessageType;

namespace {

constexpr std::string_view kTooMany = "refused, too many clients";
constexpr std::string_view kTaken = "the tap is taken";
constexpr std::string_view kNotGranted = "refused, its user has no grant";
constexpr std::string_view kDeaf = "dropped, does not listen";

bool isFirstWord(ClientMessageType type) {
    return type == ClientMessageType::Hello || type == ClientMessageType::RequestGrant ||
           type == ClientMessageType::WithdrawGrant;
}

} // namespace

void TapServer::connected(ClientLink &link, Time now) {
    Client client(link, now, _front.includes(link.user()));
    if (!hasRoomFor(link)) {
        client.refuse(Refusal::Busy);
        link.close();
        tell(link, kTooMany);
        return;
    }
    _clients.push_back(std::make_unique<Client>(client));
}

/// Whoever is in front finds room, however many others have come.
bool TapServer::hasRoomFor(const ClientLink &link) const {
    const bool isAtTheMachine = _front == Front::of(link.user());
    const auto ofTheUser = std::count_if(_clients.begin(), _clients.end(), [&link](const auto &client) {
        return client->user() == link.user();
    });
    return (isAtTheMachine || _clients.size() < kMaximumClients) &&
           static_cast<std::size_t>(ofTheUser) < kMaximumClientsOfAUser;
}

/// Once, until the user's clients fare better.
void TapServer::tell(const ClientLink &link, std::string_view what) {
    if (!what.empty() && _told.isNews(link.user(), what)) {
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
    const bool isFirst = isFirstWord(message.type);
    if (isFirst && message.version != protocol::kVersion) {
        refuse(client, Refusal::Version, "dropped, speaks another version", now);
    } else if (isFirst == client.hasSpoken()) {
        refuse(client, Refusal::Malformed, "dropped, said hello too late or twice", now);
    } else if (isFirst) {
        handleFirst(client, message.type, now);
    } else if (!client.isWelcome() || !handleTap(client, message, now)) {
        refuse(client, Refusal::Malformed, "dropped, spoke out of turn", now);
    }
}

void TapServer::handleFirst(Client &client, ClientMessageType word, Time now) {
    if (word == ClientMessageType::Hello) {
        welcome(client, now);
        return;
    }
    client.asks();
    if (word == ClientMessageType::WithdrawGrant) {
        const GrantDesk::Reply answer = _desk.withdraw(client);
        reply(client, answer, now);
        if (answer.endsGrant) { // or users would be looked up for anybody's asking
            grantsChanged(now);
        }
    } else if (const auto known = _desk.request(client, now)) {
        reply(client, *known, now);
    }
}

void TapServer::welcome(Client &client, Time now) {
    const grant::Reading reading = _desk.read(client);
    if (reading.state != grant::State::Held) {
        refuse(client, Refusal::NotGranted, reading.problem.empty() ? kNotGranted : reading.problem, now);
    } else if (!client.welcome(_state, _taps.holderFor(client))) {
        drop(client, kDeaf, now);
    }
}

/// False where the client may not say this now.
bool TapServer::handleTap(Client &client, const ClientMessage &message, Time now) {
    switch (message.type) {
    case ClientMessageType::CreateTap:
        createTap(client, message.eventMask, now);
        return true;
    case ClientMessageType::Verdict: // a client may still answer what it has read
        return _taps.judge(client, message.frame, message.on != 0);
    default:
        break;
    }
    if (!_taps.isOpenFor(client)) {
        return false;
    }
    if (message.type == ClientMessageType::SetEnabled) {
        _taps.setEnabled(client, message.on != 0);
    } else {
        closeTap(client, now);
    }
    return true;
}

void TapServer::createTap(Client &client, EventMask mask, Time now) {
    if (!_taps.isFreeFor(client)) {
        client.refuse(Refusal::Busy);
        tell(client.link(), kTaken);
        return;
    }
    _taps.open(client, mask);
    _told.forget(client.user());
    _log.line(client.link().name() + ": has the tap");
    if (_taps.actsFor(client)) {
        _bars.retry(now); // where the tap before has just ended, they have been wanted all along
    }
    updateWanted(now);
    if (!client.tell(ServerMessageType::TapCreated)) {
        drop(client, kDeaf, now);
    }
}

void TapServer::closeTap(const Client &client, Time now) {
    if (_taps.actsFor(client)) {
        _lingerUntil = now + std::chrono::microseconds(protocol::kGrabLinger);
    }
    _taps.close(client);
    _told.forget(kTaken);
    _log.line(client.link().name() + ": the tap has ended");
    updateWanted(now);
}

/// The last word to a client that came with a wish.
void TapServer::reply(Client &client, const GrantDesk::Reply &reply, Time now) {
    if (reply.type == ServerMessageType::Refused) {
        client.refuse(reply.reason);
    } else {
        client.tell(reply.type);
    }
    drop(client, reply.why, now);
}

void TapServer::answered(const ClientLink &link, Answer answer, Time now) {
    const auto client = find(link);
    if (client != _clients.end() && _desk.isAsked(link)) {
        reply(**client, _desk.answered(**client, answer), now);
        publish();
    }
}

void TapServer::grantsChanged(Time now) {
    forEachThat(
        [this](const Client &client) { return client.isWelcome() && !_desk.isGranted(client); },
        [&](Client &client) { refuse(client, Refusal::NotGranted, "dropped, its grant has ended", now); });
    forEachThat([this](const Client &client) { return client.isAsking() && _desk.isGranted(client); },
                [&](Client &client) {
                    reply(client, {ServerMessageType::Granted, {}, {}, false}, now);
                });
    publish();
}

void TapServer::frontChanged(const Front &front, Time now) {
    if (_front == front) {
        return;
    }
    _front = front;
    _log.line("in front: " + front.name());
    for (const auto &client : _clients) {
        client->setInFront(front.includes(client->user()));
    }
    _taps.choose();
    _bars.retry(now);
    updateWanted(now);
    grantsChanged(now); // nobody tells of a user that was deleted
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
    _desk.forget((*client)->link());
    if (_taps.isOpenFor(**client)) {
        closeTap(**client, now);
    }
    _clients.erase(client);
    if (_clients.empty()) {
        _idleSince = now;
    }
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

} // namespace barquell::tapd
