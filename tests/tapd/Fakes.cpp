#include "Fakes.h"

#include "evdev/Devices.h"

namespace barquell::test {

using namespace protocol;

std::vector<ServerMessageType> FakeLink::takeTypes() {
    std::vector<ServerMessageType> types;
    for (const ServerMessage &message : take()) {
        types.push_back(message.type);
    }
    return types;
}

FakeBar::FakeBar(const evdev::DeviceDescription &device) : description(device), _driver(device) {}

void FakeBar::down(std::size_t slot, std::int32_t x) {
    _hand.resize(std::max(_hand.size(), slot + 1));
    _hand[slot].trackingId = _nextId++ & 0xffff;
    move(slot, x);
}

void FakeBar::move(std::size_t slot, std::int32_t x) {
    _hand.at(slot).axis(evdev::kAbsMtPositionX) = x;
}

void FakeBar::up(std::size_t slot) {
    _hand.at(slot).trackingId = evdev::kNoContact;
}

std::vector<evdev::InputEvent> FakeBar::report() {
    std::vector<evdev::InputEvent> events = _driver.moveTo(_hand, 0);
    for (const evdev::InputEvent &event : events) {
        _slot = event.type == evdev::kEvAbs && event.code == evdev::kAbsMtSlot ? event.value : _slot;
    }
    return events;
}

std::optional<tapd::BarState> FakeBar::state() {
    report();
    const bool eventsWaited = grabbed && std::exchange(tapAtGrab, false);
    return unplugged ? std::nullopt : std::optional(tapd::BarState{_driver.contacts(), _slot, eventsWaited});
}

bool FakeBar::grab() {
    EXPECT_TRUE(hasClone) << "grabbed before there is somewhere to send";
    EXPECT_FALSE(evdev::anyContact(_driver.contacts())) << "grabbed with a finger on it";
    ++grabs;
    grabbed = !refusesGrab;
    if (fingerAfterGrab >= 0) {
        down(0, std::exchange(fingerAfterGrab, -1));
    }
    return grabbed;
}

void FakeBar::ungrab() {
    EXPECT_TRUE(grabbed);
    grabbed = false;
}

bool FakeBar::createClone() {
    EXPECT_FALSE(hasClone);
    hasClone = !refusesClone;
    clones += hasClone ? 1 : 0;
    if (hasClone) {
        _reader.emplace(tapd::cloneDescription(description));
    }
    return hasClone;
}

void FakeBar::destroyClone() {
    EXPECT_TRUE(hasClone);
    EXPECT_TRUE(cloneIsBroken || !evdev::anyContact(cloneHolds())) << "a finger was on the clone";
    hasClone = false;
}

bool FakeBar::sendToClone(std::span<const evdev::InputEvent> events) {
    EXPECT_TRUE(hasClone && grabbed);
    if (cloneIsBroken) {
        return false;
    }
    for (const evdev::InputEvent &event : events) {
        sent.push_back(event);
        if (_reader->feed(event)) {
            see();
        }
    }
    return true;
}

void FakeBar::see() {
    std::vector<std::int32_t> positions;
    for (std::size_t i = 0; i < _reader->contacts().size(); ++i) {
        const evdev::Slot &slot = _reader->contacts()[i];
        if (slot.trackingId >= 0) {
            const std::int32_t x = slot.axis(evdev::kAbsMtPositionX);
            positions.push_back(x);
            overtaken = overtaken || x < _last.at(i);
            _last.at(i) = x;
        }
    }
    seen.push_back(positions);
}

TapdTest::TapdTest() : bar(t2Bar()) {
    grants.give(client.uid);
}

void TapdTest::expectRefused(FakeLink &link, Refusal reason) {
    ASSERT_FALSE(link.heard.empty());
    EXPECT_EQ(link.heard.back().type, ServerMessageType::Refused);
    EXPECT_EQ(link.heard.back().reason, reason);
}

void TapdTest::plug(FakeBar &device) {
    ASSERT_TRUE(server.barAdded(device.description, device, now));
}

void TapdTest::report(FakeBar &device) {
    auto events = device.report();
    if (!server.reads(device)) {
        device.lost = true;
        return;
    }
    if (std::exchange(device.lost, false)) {
        events.insert(events.begin(), {0, evdev::kEvSyn, evdev::kSynDropped, 0});
    }
    server.barRead(device, events, now);
}

void TapdTest::tapAt(std::int32_t x) {
    bar.down(0, x);
    report(bar);
    bar.up(0);
    report(bar);
}

void TapdTest::connect(FakeLink &link) {
    server.connected(link, now);
}

void TapdTest::begin(FakeLink &link, ClientMessageType word) {
    connect(link);
    ClientMessage message;
    message.type = word;
    message.version = kVersion;
    say(link, message);
}

void TapdTest::say(FakeLink &link, const ClientMessage &message) {
    server.received(link, packetOf(message), now);
}

void TapdTest::create(FakeLink &link, EventMask mask) {
    ClientMessage message;
    message.type = ClientMessageType::CreateTap;
    message.eventMask = mask;
    say(link, message);
}

void TapdTest::setEnabled(FakeLink &link, bool on) {
    ClientMessage message;
    message.type = ClientMessageType::SetEnabled;
    message.on = on ? 1 : 0;
    say(link, message);
}

void TapdTest::destroy(FakeLink &link) {
    ClientMessage message;
    message.type = ClientMessageType::DestroyTap;
    say(link, message);
}

void TapdTest::judge(FakeLink &link, std::uint64_t frame, bool pass) {
    ClientMessage message;
    message.type = ClientMessageType::Verdict;
    message.frame = frame;
    message.on = pass ? 1 : 0;
    say(link, message);
}

void TapdTest::startTapping() {
    plug(bar);
    hello(client);
    create(client);
    setEnabled(client, true);
    announce(bar);
    ASSERT_TRUE(bar.grabbed);
    client.take();
}

void TapdTest::later(std::chrono::microseconds time) {
    now += time;
    server.advance(now);
}

} // namespace barquell::test
