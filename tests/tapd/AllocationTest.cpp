#include "evdev/Devices.h"
#include "platform/linux/tapd/core/TapServer.h"
#include "support/CountedAllocations.h"

#include <gtest/gtest.h>

#include <array>

namespace barquell::test {

using namespace protocol;

namespace {

class NoLog final : public tapd::Log {
public:
    void line(std::string_view /*text*/) override { ++lines; }

    int lines = 0;
};

class Link final : public tapd::ClientLink {
public:
    bool send(const ServerMessage &message) override {
        last = message;
        return true;
    }
    void close() override { closed = true; }
    const std::string &name() const override { return _name; }
    std::uint32_t user() const override { return 1000; }
    std::int32_t process() const override { return 7; }

    ServerMessage last;
    bool closed = false;

private:
    std::string _name = "a client";
};

class EverybodysGrants final : public tapd::GrantPort {
public:
    grant::Reading read(std::uint32_t /*user*/) override { return {grant::State::Held, {}}; }
    bool canGive(std::uint32_t /*user*/) override { return true; }
    std::string give(std::uint32_t /*user*/) override { return {}; }
    std::string withdraw(std::uint32_t /*user*/) override { return {}; }
};

class NoAuthority final : public tapd::AuthorityPort {
public:
    bool ask(const tapd::ClientLink & /*link*/) override { return false; }
    void forget(const tapd::ClientLink & /*link*/) override {}
};

class Port final : public tapd::BarPort {
public:
    std::optional<tapd::BarState> state() override { return tapd::BarState(); }
    bool grab() override { return true; }
    void ungrab() override {}
    bool createClone() override { return true; }
    void destroyClone() override {}
    bool sendToClone(std::span<const evdev::InputEvent> events) override {
        sent += events.size();
        return true;
    }

    std::size_t sent = 0;
};

ClientMessage messageOf(ClientMessageType type) {
    ClientMessage message;
    message.type = type;
    message.on = type == ClientMessageType::SetEnabled || type == ClientMessageType::Verdict ? 1 : 0;
    message.version = type == ClientMessageType::Hello ? kVersion : 0;
    message.eventMask = type == ClientMessageType::CreateTap ? maskOf(EventType::Gesture) : 0;
    return message;
}

} // namespace

TEST(AllocationTest, TheEventPathNeitherAllocatesNorLogs) {
    NoLog log;
    Link link;
    Port port;
    EverybodysGrants grants;
    NoAuthority authority;
    tapd::TapServer server(grants, authority, log);
    const tapd::Time now{std::chrono::hours(1)};
    ASSERT_TRUE(server.barAdded(palmBar(), port, now));
    server.keyboardAdded(1);
    server.connected(link, now);
    for (const auto type :
         {ClientMessageType::Hello, ClientMessageType::CreateTap, ClientMessageType::SetEnabled}) {
        server.received(link, packetOf(messageOf(type)), now);
    }
    server.cloneAppeared(port, now);

    ClientMessage verdict = messageOf(ClientMessageType::Verdict);
    const auto play = [&](std::int32_t round) {
        const std::int32_t finger = round % 10 < 8 ? round / 10 : -1;
        const std::array<evdev::InputEvent, 6> events{
            {{0, evdev::kEvAbs, evdev::kAbsMtSlot, round % 3},
             {0, evdev::kEvAbs, evdev::kAbsMtTrackingId, finger},
             {0, evdev::kEvAbs, evdev::kAbsMtPositionX, round % 30000},
             {0, evdev::kEvSyn, evdev::kSynReport, 0}}};
        const std::array<evdev::InputEvent, 1> key{{{0, evdev::kEvKey, 42, round % 2}}};
        server.keyboardRead(1, key);
        server.barRead(port, std::span(events).first(4), now);
        verdict.frame = link.last.frame;
        verdict.on = round % 7 < 4 ? 1 : 0;
        server.received(link, packetOf(verdict), now);
        server.advance(now);
    };
    std::int32_t round = 0;
    for (; round < 500; ++round) {
        play(round);
    }
    const std::size_t before = allocations();
    const int lines = log.lines;
    const std::size_t sent = port.sent;
    for (; round < 5000; ++round) {
        play(round);
    }
    EXPECT_GT(before, 0U) << "or nothing is counted";
    EXPECT_EQ(allocations() - before, 0U);
    EXPECT_EQ(log.lines - lines, 0);
    EXPECT_GT(port.sent - sent, 1000U) << "or nothing was tried";
    EXPECT_FALSE(link.closed);
    server.barRemoved(port);
}

} // namespace barquell::test
