#include "platform/linux/tapd/core/Taps.h"

#include <algorithm>
#include <bit>

namespace barquell::tapd {

Taps::Tap *Taps::tapOf(const Client &client) const {
    const auto tap = std::find_if(_taps.begin(), _taps.end(),
                                  [&client](const auto &entry) { return entry->owner == &client; });
    return tap == _taps.end() ? nullptr : tap->get();
}

bool Taps::isFreeFor(const Client &client) const {
    const bool actsInItsPlace = _acting && client.isInFront();
    return !actsInItsPlace && std::none_of(_taps.begin(), _taps.end(), [&client](const auto &tap) {
        return tap->owner->user() == client.user();
    });
}

std::int32_t Taps::holderFor(const Client &asking) const {
    const auto own = std::find_if(_taps.begin(), _taps.end(),
                                  [&asking](const auto &tap) { return tap->owner->user() == asking.user(); });
    const Tap *tap = own == _taps.end() ? _acting : own->get();
    return tap ? tap->owner->processFor(asking) : protocol::kNobody;
}

void Taps::open(Client &owner, EventMask mask) {
    _taps.push_back(std::make_unique<Tap>(Tap{&owner, mask, false}));
    choose();
}

void Taps::close(const Client &owner) {
    if (actsFor(owner)) {
        passAll();
        _acting = nullptr;
    }
    std::erase_if(_taps, [&owner](const auto &tap) { return tap->owner == &owner; });
    choose();
}

void Taps::choose() {
    const auto acting =
        std::find_if(_taps.begin(), _taps.end(), [](const auto &tap) { return tap->owner->isInFront(); });
    Tap *chosen = acting == _taps.end() ? nullptr : acting->get();
    if (chosen != _acting) {
        passAll();
        _acting = chosen;
    }
}

void Taps::setEnabled(const Client &owner, bool enabled) {
    tapOf(owner)->enabled = enabled;
    if (!enabled && actsFor(owner)) {
        passAll();
    }
}

void Taps::frame(BarRelay &bar, const BarFrame &frame, Time now) {
    if (!wantsBars() || !_acting->enabled) {
        bar.pass(frame.contacts, frame.time, frame.timestamp);
        return;
    }
    Client &owner = *_acting->owner;
    const std::uint64_t number = owner.lastFrame() + 1;
    if (_queue.isFull() || !owner.tell(messageOf(frame, number))) {
        // So much unread can only be a client that does not answer.
        disableByTimeout();
        bar.pass(frame.contacts, frame.time, frame.timestamp);
        return;
    }
    PendingFrame &pending = _queue.push();
    owner.setLastFrame(number);
    pending.number = number;
    pending.sent = now;
    pending.bar = &bar;
    pending.contacts = frame.contacts;
    pending.time = frame.time;
    pending.timestamp = frame.timestamp;
}

protocol::ServerMessage Taps::messageOf(const BarFrame &frame, std::uint64_t number) const {
    protocol::ServerMessage message;
    message.type = protocol::ServerMessageType::Frame;
    message.frame = number;
    message.flags = _state.flags;
    for (const evdev::Touch &touch : frame.touches.touches()) {
        ++message.touchCounts.at(static_cast<std::size_t>(std::countr_zero(touch.phase)));
        if (message.listedTouches < protocol::kListedTouches) {
            message.touches.at(message.listedTouches++) = {touch.phase, touch.trackingId, touch.x, touch.y};
        }
    }
    return message;
}

/// Is no verdict of the client awaited on the frame any more, though it was told of such a frame?
bool Taps::isPast(const Client &client, std::uint64_t frame) const {
    const bool waits = actsFor(client) && !_queue.isEmpty();
    return frame > 0 && frame <= client.lastFrame() && (!waits || frame < _queue.front().number);
}

bool Taps::judge(const Client &client, std::uint64_t frame, bool pass) {
    if (!actsFor(client) || _queue.isEmpty() || frame != _queue.front().number) {
        return isPast(client, frame);
    }
    const PendingFrame &pending = _queue.front();
    if (pending.bar && pass) {
        pending.bar->pass(pending.contacts, pending.time, pending.timestamp);
    } else if (pending.bar) {
        pending.bar->swallow(pending.contacts, pending.time);
    }
    _queue.pop();
    return true;
}

void Taps::passAll() {
    for (; !_queue.isEmpty(); _queue.pop()) {
        const PendingFrame &pending = _queue.front();
        if (pending.bar) {
            pending.bar->pass(pending.contacts, pending.time, pending.timestamp);
        }
    }
}

std::optional<Time> Taps::deadline() const {
    if (_queue.isEmpty()) {
        return std::nullopt;
    }
    return _queue.front().sent + std::chrono::microseconds(protocol::kVerdictLimit);
}

bool Taps::advance(Time now) {
    const auto limit = deadline();
    if (!limit || now < *limit) {
        return false;
    }
    disableByTimeout();
    return true;
}

void Taps::disableByTimeout() {
    _acting->enabled = false;
    passAll();
    _acting->owner->oweDisabled();
}

} // namespace barquell::tapd
