#include "platform/linux/tapd/core/TapServer.h"

#include <algorithm>

// What devices and time do to the server; what clients do is beside it.
namespace barquell::tapd {

bool TapServer::barAdded(const evdev::DeviceDescription &bar, BarPort &port, Time now) {
    const bool added = _bars.add(bar, port, now);
    publish();
    return added;
}

void TapServer::barRead(BarPort &port, std::span<const evdev::InputEvent> events, Time now) {
    if (BarRelay *bar = _bars.find(port)) {
        bar->read(events, now);
        publish();
    }
}

void TapServer::barRemoved(BarPort &port) {
    _bars.remove(port);
    publish();
}

void TapServer::cloneAppeared(BarPort &port, Time now) {
    if (BarRelay *bar = _bars.find(port)) {
        bar->cloneAppeared(now);
        publish();
    }
}

bool TapServer::reads(const BarPort &port) const {
    const BarRelay *bar = _bars.find(port);
    return bar && bar->needsEvents() && !_taps.isCrowded();
}

void TapServer::keyboardRead(int keyboard, std::span<const evdev::InputEvent> events) {
    _keyboards.read(keyboard, events);
    publish();
}

void TapServer::keyboardRemoved(int keyboard) {
    _keyboards.remove(keyboard);
    publish();
}

void TapServer::endWhenIdle(Time now) {
    _endsWhenIdle = true;
    _idleSince = now;
}

std::optional<Time> TapServer::idleDeadline() const {
    return _endsWhenIdle && _clients.empty() ? std::optional(*_idleSince + kIdleLimit) : std::nullopt;
}

bool TapServer::isDone(Time now) const {
    const auto limit = idleDeadline();
    return limit && now >= *limit;
}

std::optional<Time> TapServer::deadline() const {
    std::optional<Time> earliest = _taps.deadline();
    const auto consider = [&earliest](std::optional<Time> time) {
        earliest = earliest && time ? std::min(*earliest, *time) : time ? time : earliest;
    };
    consider(_lingerUntil);
    consider(_desk.deadline());
    consider(idleDeadline());
    for (const auto &client : _clients) {
        if (!client->hasSpoken()) {
            consider(client->helloDeadline());
        }
    }
    return earliest;
}

void TapServer::advance(Time now) {
    if (_taps.advance(now)) {
        _log.line("the tap is disabled, its client does not answer");
    }
    if (_lingerUntil && now >= *_lingerUntil) {
        _lingerUntil.reset();
        updateWanted(now);
    }
    while (const ClientLink *late = _desk.late(now)) {
        reply(**find(*late), GrantDesk::noAnswer(), now);
    }
    forEachThat([now](const Client &client) { return !client.hasSpoken() && now >= client.helloDeadline(); },
                [&](Client &client) { drop(client, "dropped, said no hello", now); });
    publish();
}

void TapServer::updateWanted(Time now) {
    _bars.setWanted(_taps.wantsBars() || _lingerUntil, now);
}

/// Tells everybody what has changed of what everybody may know.
void TapServer::publish() {
    const PublicState state{_keyboards.flags(), _bars.known(), _bars.grabbed()};
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
