#include "platform/linux/tapd/core/Tap.h"

#include <algorithm>
#include <bit>

namespace barquell::tapd {

void Tap::open(Client &owner, EventMask mask) {
    _owner = &owner;
    _mask = mask;
    _enabled = false;
}

void Tap::close() {
    passAll();
    _owner = nullptr;
}

void Tap::setEnabled(bool enabled) {
    _enabled = enabled;
    if (!enabled) {
        passAll();
    }
}

void Tap::frame(BarRelay &bar, const BarFrame &frame, Time now) {
    if (!wantsBars() || !_enabled) {
        bar.pass(frame.contacts, frame.time, frame.timestamp);
        return;
    }
    if (_queue.isFull() || !_owner->tell(messageOf(frame))) {
        // So much unread can only be a client that does not answer.
        disableByTimeout();
        bar.pass(frame.contacts, frame.time, frame.timestamp);
        return;
    }
    PendingFrame &pending = _queue.push();
    pending.number = ++_lastNumber;
    pending.sent = now;
    pending.bar = &bar;
    pending.contacts = frame.contacts;
    pending.time = frame.time;
    pending.timestamp = frame.timestamp;
}

protocol::ServerMessage Tap::messageOf(const BarFrame &frame) const {
    protocol::ServerMessage message;
    message.type = protocol::ServerMessageType::Frame;
    message.frame = _lastNumber + 1;
    message.flags = _state.flags;
    for (const evdev::Touch &touch : frame.touches.touches()) {
        ++message.touchCounts.at(static_cast<std::size_t>(std::countr_zero(touch.phase)));
        if (message.listedTouches < protocol::kListedTouches) {
            message.touches.at(message.listedTouches++) = {touch.phase, touch.trackingId, touch.x, touch.y};
        }
    }
    return message;
}

bool Tap::isPast(std::uint64_t frame) const {
    return frame > 0 && frame <= _lastNumber && (_queue.isEmpty() || frame < _queue.front().number);
}

bool Tap::judge(std::uint64_t frame, bool pass) {
    if (_queue.isEmpty() || frame != _queue.front().number) {
        return isPast(frame);
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

void Tap::passAll() {
    for (; !_queue.isEmpty(); _queue.pop()) {
        const PendingFrame &pending = _queue.front();
        if (pending.bar) {
            pending.bar->pass(pending.contacts, pending.time, pending.timestamp);
        }
    }
}

std::optional<Time> Tap::deadline() const {
    if (_queue.isEmpty()) {
        return std::nullopt;
    }
    return _queue.front().sent + std::chrono::microseconds(protocol::kVerdictLimit);
}

bool Tap::advance(Time now) {
    const auto limit = deadline();
    if (!limit || now < *limit) {
        return false;
    }
    disableByTimeout();
    return true;
}

void Tap::disableByTimeout() {
    _enabled = false;
    passAll();
    _owner->oweDisabled();
}

} // namespace barquell::tapd
