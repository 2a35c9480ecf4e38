#include "Chance.h"

#include "evdev/Devices.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;

Chance::Chance() : second(palmBar()) {
    other.uid = client.uid + 1;
    grants.give(other.uid);
    plug(bar);
    plug(second);
    server.keyboardAdded(1);
    arrive();
}

Chance::Place Chance::at(std::size_t place) {
    constexpr std::size_t kSlots = kPlaces / 2;
    return {place % kPlaces < kSlots ? bar : second, place % kSlots};
}

void Chance::step(int what, std::size_t place) {
    switch (what) {
    case 0:
    case 1:
    case 2:
    case 3:
        touch(at(place));
        break;
    case 4:
    case 5:
        if (at(place).isDown()) {
            lift(at(place));
            report(at(place).bar);
        }
        break;
    case 6:
    case 7:
    case 8:
        answer(true);
        break;
    case 9:
    case 10:
        answer(false);
        break;
    case 11:
        later(place == 0 ? 1s : 150ms);
        break;
    case 12:
        _here ? leave() : arrive();
        break;
    case 13:
        recreate(place);
        break;
    case 14:
        loseEvents(at(place));
        break;
    case 15:
        replug(at(place).bar);
        break;
    case 16:
        server.keyboardRead(1, std::vector<evdev::InputEvent>{{0, evdev::kEvKey, 0x1d0, place == 0 ? 1 : 0}});
        break;
    case 17:
        client.full = _here && place == 0;
        server.writable(client);
        break;
    case 18:
        changeFront(place);
        break;
    case 19:
        changeGrant(place < 2 ? client : other);
        break;
    case 20:
        wish(place);
        break;
    default:
        announce(bar);
        announce(second);
    }
    listen();
}

void Chance::touch(Place place) {
    ++_x;
    place.isDown() ? place.bar.move(place.slot, _x) : place.bar.down(place.slot, _x);
    report(place.bar);
}

void Chance::lift(Place place) {
    if (place.isDown()) {
        place.bar.up(place.slot);
    }
}

void Chance::answer(bool pass) {
    if (!_out.empty() && _here) {
        judge(client, _out.front(), pass);
        _out.pop_front();
    }
}

void Chance::arrive() {
    client.closed = false;
    client.full = false;
    _lastNumber = 0;
    hello(client);
    create(client);
    _here = !client.closed;
    for (const ServerMessage &message : client.take()) {
        watch(client, message);
        if (message.type == ServerMessageType::TapCreated) {
            setEnabled(client, true);
        }
    }
    announce(bar);
    announce(second);
}

void Chance::leave() {
    server.disconnected(client, now);
    _out.clear();
    _here = false;
}

void Chance::recreate(std::size_t how) {
    if (!_here) {
        return;
    }
    if (how == 0) {
        destroy(client);
        create(client);
    }
    setEnabled(client, how != 1);
    if (how < 2) {
        _out.clear();
    }
}

void Chance::loseEvents(Place place) {
    ++_x;
    place.bar.down(place.slot, _x);
    place.bar.report();
    place.bar.up(place.slot);
    place.bar.report();
    place.bar.lost = true;
    report(place.bar);
}

void Chance::replug(FakeBar &device) {
    server.barRemoved(device);
    for (std::size_t slot = 0; slot < kPlaces / 2; ++slot) {
        lift({device, slot});
    }
    device.report();
    device.lost = false;
    plug(device);
    announce(device);
}

void Chance::changeFront(std::size_t how) {
    using tapd::Front;
    _front = how == 0   ? Front::everybody()
             : how == 1 ? Front::nobody()
             : how < 4  ? Front::of(client.uid)
                        : Front::of(other.uid);
    server.frontChanged(_front, now);
    if (!_front.includes(client.uid)) {
        _out.clear();
    }
}

void Chance::changeGrant(const FakeLink &of) {
    if (grants.read(of.uid).state == grant::State::Held) {
        grants.withdraw(of.uid);
    } else {
        grants.give(of.uid);
    }
    server.grantsChanged(now);
}

/// The other one asks for the grant or gives it up, or is answered.
void Chance::wish(std::size_t how) {
    if (authority.asked.contains(&other)) {
        server.answered(other, static_cast<tapd::Answer>(how % 3), now);
    } else if (!_otherHere) {
        authority.isThere = how != 0;
        connectOther(how < 4 ? ClientMessageType::RequestGrant : ClientMessageType::WithdrawGrant);
    }
}

void Chance::connectOther(ClientMessageType word) {
    other.closed = false;
    other.full = false;
    begin(other, word);
    _otherHere = true;
}

void Chance::sayAnything(std::span<const std::byte> packet) {
    if (!_otherHere) {
        connectOther(ClientMessageType::Hello);
        listen();
    }
    server.received(other, packet, now);
    listen();
}

void Chance::makeNoise(std::size_t place, const evdev::InputEvent &event) {
    FakeBar &device = at(place).bar;
    if (server.reads(device)) {
        server.barRead(device, std::span(&event, 1), now);
    }
    listen();
}

void Chance::watch(const FakeLink &hearer, const ServerMessage &message) {
    const bool forTheFront = message.type == ServerMessageType::Frame || message.flags != 0;
    const bool granted = grants.read(hearer.uid).state == grant::State::Held;
    _trespassed = _trespassed || (forTheFront && !_front.includes(hearer.uid)) ||
                  (message.type == ServerMessageType::Welcome && !granted);
}

/// What a bar told while it was not read is read as soon as the server reads it again.
void Chance::catchUp() {
    for (FakeBar *device : {&bar, &second}) {
        if (device->lost && server.reads(*device)) {
            report(*device);
        }
    }
}

void Chance::listen() {
    catchUp();
    for (const ServerMessage &message : client.take()) {
        watch(client, message);
        if (message.type == ServerMessageType::Frame) {
            _inOrder = _inOrder && message.frame > _lastNumber;
            _lastNumber = message.frame;
            _out.push_back(message.frame);
        } else if (message.type == ServerMessageType::DisabledByTimeout) {
            _out.clear();
            setEnabled(client, true);
        }
    }
    if (client.closed && _here) {
        _out.clear();
        _here = false;
    }
    for (const ServerMessage &message : other.take()) {
        watch(other, message);
        _otherHasFrames = _otherHasFrames || message.type == ServerMessageType::Frame;
    }
    if (other.closed) {
        _otherHere = _otherHasFrames = false;
    }
}

bool Chance::isConsistent() const {
    const auto isFree = [](const FakeBar &device) {
        return evdev::anyContact(device.held()) || !evdev::anyContact(device.cloneHolds());
    };
    return !_out.empty() || _otherHasFrames || (isFree(bar) && isFree(second));
}

void Chance::end() {
    for (std::size_t place = 0; place < kPlaces; ++place) {
        lift(at(place));
    }
    report(bar);
    report(second);
    if (_here) {
        leave();
    }
    if (_otherHere) {
        server.disconnected(other, now);
        _otherHere = _otherHasFrames = false;
    }
    later(1h);
}

bool Chance::isAtRest() const {
    const auto rests = [](const FakeBar &device) { return !device.grabbed && !device.hasClone; };
    return isConsistent() && rests(bar) && rests(second) && authority.asked.empty();
}

} // namespace barquell::test
