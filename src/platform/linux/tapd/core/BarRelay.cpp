#include "platform/linux/tapd/core/BarRelay.h"

#include "platform/linux/tapd/core/CloneDescription.h"

namespace barquell::tapd {

using evdev::Contacts;
using evdev::InputEvent;

BarRelay::BarRelay(const evdev::DeviceDescription &bar, BarPort &port, FrameSink &sink, Log &log)
    : _clone(cloneDescription(bar)), _port(port), _sink(sink), _log(log), _reader(bar), _output(_clone) {
    _wantedContacts.reserve(evdev::kMaximumSlots);
}

BarRelay::~BarRelay() {
    swallow({}, 0);
    giveBack();
}

void BarRelay::setWanted(bool wanted, Time now) {
    if (wanted == _wanted) {
        return;
    }
    _wanted = wanted;
    _failed = false;
    _toldOfGrab = false;
    resync(now); // nobody has followed it meanwhile
    settle(now);
}

void BarRelay::retry(Time now) {
    if (_wanted && _failed) {
        _failed = false;
        resync(now);
        settle(now);
    }
}

void BarRelay::cloneAppeared(Time now) {
    _cloneKnown = _hasClone;
    settle(now);
}

void BarRelay::read(std::span<const InputEvent> events, Time now) {
    for (const InputEvent &event : events) {
        if (event.type == evdev::kEvSyn && event.code == evdev::kSynDropped) {
            resync(now);
            break; // what follows is older than the answer
        }
        if (_reader.feed(event)) {
            deliver(event.time, now);
        }
    }
    settle(now);
}

void BarRelay::deliver(std::int64_t time, Time now) {
    if (_grabbed) {
        _sink.frame(*this, {_reader.frame(), _reader.contacts(), time, _reader.timestamp()}, now);
    }
}

void BarRelay::resync(Time now) {
    if (const auto state = _port.state()) {
        _reader.resync(state->contacts, state->slot);
        _eventsWaited = state->eventsWaited;
        const auto sinceStart = std::chrono::duration_cast<std::chrono::microseconds>(now.time_since_epoch());
        deliver(sinceStart.count(), now);
    }
}

/// Moves on towards what is wanted, as far as the bar lets it now.
void BarRelay::settle(Time now) {
    if (_wanted && !_failed && !_grabbed) {
        makeClone();
        tryGrab(now);
    } else if (!_wanted && (!_grabbed || isFree(now))) {
        giveBack();
    }
}

bool BarRelay::isFree(Time now) {
    if (evdev::anyContact(_reader.contacts())) {
        return false;
    }
    resync(now); // the kernel may know of a finger that is still to be read
    return !evdev::anyContact(_reader.contacts());
}

void BarRelay::makeClone() {
    if (_hasClone) {
        return;
    }
    _output = evdev::CloneOutput(_clone); // a new device holds nothing, and its first slot is the current one
    _hasClone = _port.createClone();
    if (!_hasClone) {
        fail("no clone could be made");
    }
}

void BarRelay::tryGrab(Time now) {
    if (!_cloneKnown || !isFree(now)) {
        return;
    }
    if (!_port.grab()) {
        if (!_toldOfGrab) {
            _log.line(_clone.name + ": somebody else has grabbed it");
        }
        _toldOfGrab = true;
        return;
    }
    // A finger that came down just before the grab was seen by the others; they have to see its end as well.
    // Where it has lifted already they may have missed that, and their next touch puts them right.
    if (!isFree(now) || _eventsWaited) {
        _port.ungrab();
        return;
    }
    _grabbed = true;
    _log.line(_clone.name + ": grabbed");
}

void BarRelay::giveBack() {
    if (_grabbed) {
        _port.ungrab();
        _grabbed = false;
        _log.line(_clone.name + ": given back");
    }
    if (_hasClone) {
        _port.destroyClone();
        _hasClone = _cloneKnown = false;
    }
}

void BarRelay::pass(const Contacts &contacts, std::int64_t time, std::optional<std::int32_t> timestamp) {
    if (!_grabbed) {
        return;
    }
    if (contacts.size() <= kCloneSlots) {
        send(_output.moveTo(contacts, time, timestamp));
        return;
    }
    _wantedContacts.assign(contacts.begin(), contacts.begin() + kCloneSlots);
    send(_output.moveTo(_wantedContacts, time, timestamp));
}

void BarRelay::swallow(const Contacts &contacts, std::int64_t time) {
    send(_output.endLifted(contacts, time));
}

void BarRelay::send(const std::vector<InputEvent> &events) {
    if (!events.empty() && _hasClone && !_port.sendToClone(events)) {
        fail("its clone takes no more events");
    }
}

/// Better a bar that is not filtered than one that is dead.
void BarRelay::fail(std::string_view what) {
    _failed = true;
    giveBack();
    _log.line(_clone.name + ": left alone, " + std::string(what));
}

} // namespace barquell::tapd
