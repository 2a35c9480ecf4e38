#pragma once

#include "platform/linux/tapd/core/CloneDescription.h"
#include "platform/linux/tapd/core/TapServer.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace barquell::test {

class RecordingLog final : public tapd::Log {
public:
    void line(std::string_view text) override { lines.emplace_back(text); }

    std::vector<std::string> lines;
};

class FakeLink final : public tapd::ClientLink {
public:
    bool send(const protocol::ServerMessage &message) override {
        EXPECT_FALSE(closed) << "a closed client is told something";
        EXPECT_TRUE(protocol::decodeServerMessage(protocol::packetOf(message)))
            << "the server talks nonsense";
        if (full) {
            return false;
        }
        heard.push_back(message);
        return true;
    }
    void close() override { closed = true; }
    const std::string &name() const override { return _name; }
    std::uint32_t user() const override { return uid; }
    std::int32_t process() const override { return pid; }

    /// What was heard since this was last asked.
    std::vector<protocol::ServerMessage> take() { return std::exchange(heard, {}); }
    std::vector<protocol::ServerMessageType> takeTypes();

    std::vector<protocol::ServerMessage> heard;
    std::uint32_t uid = 1000;
    std::int32_t pid = 7;
    bool full = false;
    bool closed = false;

private:
    std::string _name = "a client";
};

/// Grants without a disk.
class FakeGrants final : public tapd::GrantPort {
public:
    grant::Reading read(std::uint32_t user) override {
        looked.push_back(user);
        const auto reading = readings.find(user);
        return reading == readings.end() ? grant::Reading() : reading->second;
    }
    bool canGive(std::uint32_t user) override { return !nameless.contains(user); }
    std::string give(std::uint32_t user) override {
        if (problem.empty()) {
            readings[user] = {grant::State::Held, {}};
        }
        return problem;
    }
    std::string withdraw(std::uint32_t user) override {
        if (problem.empty()) {
            readings.erase(user);
        }
        return problem;
    }

    std::map<std::uint32_t, grant::Reading> readings;
    std::set<std::uint32_t> nameless;
    std::vector<std::uint32_t> looked; ///< whose grants were read
    std::string problem;               ///< of every change
};

/// A person who says nothing by itself.
class FakeAuthority final : public tapd::AuthorityPort {
public:
    bool ask(const tapd::ClientLink &link) override {
        EXPECT_FALSE(asked.contains(&link)) << "asked twice";
        return isThere && asked.insert(&link).second;
    }
    void forget(const tapd::ClientLink &link) override { asked.erase(&link); }

    std::set<const tapd::ClientLink *> asked;
    bool isThere = true;
};

/// A bar with a hand on it, and a reader of its clone. It checks by itself that the grab comes and goes only
/// while the bar is free, and that the clone goes without a finger on it.
class FakeBar final : public tapd::BarPort {
public:
    explicit FakeBar(const evdev::DeviceDescription &device);

    /// The hand; report() then tells what the driver sends for it.
    void down(std::size_t slot, std::int32_t x);
    void move(std::size_t slot, std::int32_t x);
    void up(std::size_t slot);
    std::vector<evdev::InputEvent> report();
    const evdev::Contacts &held() const { return _driver.contacts(); }

    std::optional<tapd::BarState> state() override;
    bool grab() override;
    void ungrab() override;
    bool createClone() override;
    void destroyClone() override;
    bool sendToClone(std::span<const evdev::InputEvent> events) override;

    const evdev::DeviceDescription description;
    bool lost = false; ///< what it reported last was not read
    bool unplugged = false;
    bool refusesGrab = false;
    bool refusesClone = false;
    bool cloneIsBroken = false;
    std::int32_t fingerAfterGrab = -1; ///< comes down in the moment of the grab
    bool tapAtGrab = false;            ///< a finger comes down and lifts in the moment of the grab

    bool grabbed = false;
    bool hasClone = false;
    int grabs = 0;
    int clones = 0;
    std::vector<evdev::InputEvent> sent;         ///< to all clones
    std::vector<std::vector<std::int32_t>> seen; ///< by the clone's reader: the contacts' x, frame by frame
    bool overtaken = false;                      ///< a position of a slot was smaller than one before
    evdev::Contacts cloneHolds() const { return _reader ? _reader->contacts() : evdev::Contacts(); }

private:
    evdev::Contacts _hand;
    evdev::CloneOutput _driver;
    std::optional<evdev::TouchReader> _reader;
    void see();

    std::int32_t _nextId = 0;
    std::int32_t _slot = 0;
    std::array<std::int32_t, evdev::kMaximumSlots> _last{};
};

/// A server with a bar to plug in and two clients that may connect, whose user has a grant.
class TapdTest : public testing::Test {
protected:
    void plug(FakeBar &device);
    /// udev tells of the clone.
    void announce(FakeBar &device) { server.cloneAppeared(device, now); }
    /// The bar reports what the hand did; lost where the server does not read now.
    void report(FakeBar &device);
    void tapAt(std::int32_t x);

    void connect(FakeLink &link);
    /// Connects and says the word.
    void begin(FakeLink &link, protocol::ClientMessageType word);
    void hello(FakeLink &link) { begin(link, protocol::ClientMessageType::Hello); }
    void expectRefused(FakeLink &link, protocol::Refusal reason);
    void say(FakeLink &link, const protocol::ClientMessage &message);
    void create(FakeLink &link, EventMask mask = maskOf(EventType::Gesture));
    void setEnabled(FakeLink &link, bool on);
    void destroy(FakeLink &link);
    void judge(FakeLink &link, std::uint64_t frame, bool pass);
    /// The first client has an enabled tap and the bar is held for it.
    void startTapping();
    void later(std::chrono::microseconds time);

    static constexpr std::chrono::seconds kVerdictLimit{1};
    static constexpr std::chrono::milliseconds kLinger{200};

    RecordingLog log;
    tapd::Time now{std::chrono::hours(1)};
    FakeGrants grants;
    FakeAuthority authority;
    FakeBar bar;
    FakeLink client;
    FakeLink other;
    tapd::TapServer server{grants, authority, log}; // goes before what it was given

    TapdTest();
};

} // namespace barquell::test
