#include "FakeServer.h"

#include "platform/linux/client/TapServerClient.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <chrono>
#include <memory>
#include <vector>

namespace barquell::test {

using namespace std::chrono_literals;
using protocol::ClientMessageType;
using protocol::Refusal;
using protocol::ServerMessage;
using protocol::ServerMessageType;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr EventMask kMask = 0x20001000;

/// What the callback was called with, and what it answers.
struct Calls {
    std::vector<EventType> types;
    std::vector<ModifierFlags> flags;
    std::vector<int> touching;
    bool swallow = true;
};

Calls &calls() {
    static Calls calls;
    return calls;
}

Event *callback(EventType type, Event *event) {
    calls().types.push_back(type);
    if (!event) {
        return nullptr;
    }
    calls().flags.push_back(event->flags());
    calls().touching.push_back(event->touchCount(kTouching));
    return calls().swallow ? nullptr : event;
}

ServerMessage frame(std::uint64_t number, std::uint16_t touching, ModifierFlags flags = 0) {
    ServerMessage message{.type = ServerMessageType::Frame, .flags = flags, .frame = number};
    message.touchCounts[1] = touching; // moved
    message.touchCounts[3] = 1;        // ended
    return message;
}

class TapServerClientTest : public testing::Test {
protected:
    TapServerClientTest() { place(); }

    /// Leads a tap to where it is installed and enabled.
    void install() {
        tap = client.create(kMask, callback);
        ASSERT_NE(tap, nullptr);
        source = tap->createRunLoopSource();
        tap->setEnabled(true);
        source->addToMainRunLoop();
        ASSERT_TRUE(server.accept());
        server.welcome();
        finishInstalling();
    }

    void finishInstalling() {
        const auto hello = server.next();
        EXPECT_EQ(hello.type, ClientMessageType::Hello);
        EXPECT_EQ(hello.version, protocol::kVersion);
        const auto create = server.next();
        EXPECT_EQ(create.type, ClientMessageType::CreateTap);
        EXPECT_EQ(create.eventMask, kMask);
        server.send({.type = ServerMessageType::TapCreated});
        const auto enable = server.next();
        EXPECT_EQ(enable.type, ClientMessageType::SetEnabled);
        EXPECT_EQ(enable.on, 1U);
    }

    /// Refuses the client that has called, which then leaves.
    void isOfAnotherVersion() {
        server.send({.type = ServerMessageType::Refused, .version = 9, .reason = Refusal::Version});
        server.fallSilent();
        EXPECT_TRUE(waitFor([&] {
            place().loop.runPending();
            return server.isLeft();
        }));
    }

    void expectVerdict(std::uint64_t number, bool pass) {
        const auto verdict = server.next();
        EXPECT_EQ(verdict.type, ClientMessageType::Verdict);
        EXPECT_EQ(verdict.frame, number);
        EXPECT_EQ(verdict.on, pass ? 1U : 0U);
    }

    const QString kAnotherVersion =
        QStringLiteral("The tap server speaks version 9 and not %1; touches pass").arg(protocol::kVersion);
    ScriptedTrust &trust = place().platform.trust;
    LogCapture log;
    FakeServer server;
    GrantClient grant{server.path()};
    TapServerClient client{server.path(), trust, grant};
    std::unique_ptr<EventTap> tap;
    std::unique_ptr<EventTapSource> source;
};

} // namespace

TEST_F(TapServerClientTest, AFrameIsAnsweredWithTheVerdictOfTheCallback) {
    install();
    server.send(frame(1, 2, kFlagShift));
    expectVerdict(1, false);
    calls().swallow = false;
    server.send(frame(2, 0));
    expectVerdict(2, true);
    EXPECT_THAT(calls().touching, ElementsAre(2, 0));
    EXPECT_THAT(calls().flags, ElementsAre(kFlagShift, 0));
}

TEST_F(TapServerClientTest, AFrameThatIsNotForTheCallbackPasses) {
    install();
    source.reset();
    server.send(frame(1, 1));
    expectVerdict(1, true);
    EXPECT_THAT(calls().types, IsEmpty());
}

TEST_F(TapServerClientTest, AFrameThatTheMaskLeavesOutPasses) {
    tap = client.create(maskOf(EventType::FlagsChanged), callback);
    source = tap->createRunLoopSource();
    tap->setEnabled(true);
    source->addToMainRunLoop();
    ASSERT_TRUE(server.accept());
    server.next(); // hello
    server.next(); // create
    server.welcome();
    server.send(frame(1, 1));
    expectVerdict(1, true);
    EXPECT_THAT(calls().types, IsEmpty());
}

TEST_F(TapServerClientTest, AFrameThatFindsNoTapPasses) {
    install();
    source.reset();
    tap.reset();
    EXPECT_EQ(server.next().type, ClientMessageType::DestroyTap);
    server.send(frame(1, 1));
    expectVerdict(1, true);
}

TEST_F(TapServerClientTest, DisablingAndEnablingGoesToTheServer) {
    install();
    tap->setEnabled(false);
    EXPECT_EQ(server.next().on, 0U);
    tap->setEnabled(true);
    const auto enable = server.next();
    EXPECT_EQ(enable.type, ClientMessageType::SetEnabled);
    EXPECT_EQ(enable.on, 1U);
}

TEST_F(TapServerClientTest, ModifierKeysAreKnownAndDelivered) {
    install();
    server.send({.type = ServerMessageType::FlagsChanged, .flags = kFlagFn});
    EXPECT_TRUE(waitFor([&] { return client.currentFlags() == kFlagFn; }));
    EXPECT_THAT(calls().types, ElementsAre(EventType::FlagsChanged));
    tap->setEnabled(false);
    server.send({.type = ServerMessageType::FlagsChanged, .flags = 0});
    EXPECT_TRUE(waitFor([&] { return client.currentFlags() == 0; }));
    EXPECT_EQ(calls().types.size(), 1U); // as with every event that a disabled tap does not see
}

TEST_F(TapServerClientTest, ATimeoutIsToldToTheCallback) {
    install();
    server.send({.type = ServerMessageType::DisabledByTimeout});
    EXPECT_TRUE(waitFor([] { return !calls().types.empty(); }));
    EXPECT_THAT(calls().types, ElementsAre(EventType::TapDisabledByTimeout));
}

TEST_F(TapServerClientTest, DestroyingTheTapTellsTheServerAndTheConnectionServesTheNext) {
    install();
    source.reset();
    tap.reset();
    EXPECT_EQ(server.next().type, ClientMessageType::DestroyTap);
    tap = client.create(0x20005000, callback);
    const auto create = server.next();
    EXPECT_EQ(create.type, ClientMessageType::CreateTap);
    EXPECT_EQ(create.eventMask, 0x20005000U);
}

TEST_F(TapServerClientTest, ATapThatIsGoneBeforeItWasMadeIsGivenBack) {
    tap = client.create(~EventMask{0}, callback);
    tap.reset();
    ASSERT_TRUE(server.accept());
    EXPECT_EQ(server.next().type, ClientMessageType::Hello);
    EXPECT_EQ(server.next().type, ClientMessageType::CreateTap);
    server.welcome();
    server.send({.type = ServerMessageType::TapCreated});
    EXPECT_EQ(server.next().type, ClientMessageType::DestroyTap);
}

TEST_F(TapServerClientTest, ATapThatReplacesOneStillBeingMadeIsMadeWithItsOwnMask) {
    tap = client.create(~EventMask{0}, callback);
    tap.reset();
    tap = client.create(kMask, callback);
    ASSERT_TRUE(server.accept());
    EXPECT_EQ(server.next().type, ClientMessageType::Hello);
    EXPECT_EQ(server.next().type, ClientMessageType::CreateTap);
    server.welcome();
    server.send({.type = ServerMessageType::TapCreated});
    EXPECT_EQ(server.next().type, ClientMessageType::DestroyTap);
    EXPECT_EQ(server.next().eventMask, kMask);
}

TEST_F(TapServerClientTest, OneTapAtATime) {
    install();
    EXPECT_EQ(client.create(kMask, callback), nullptr);
}

TEST_F(TapServerClientTest, WithoutAGrantThereIsNoTapAndTheGrantIsAskedFor) {
    trust.trusted = false;
    EXPECT_EQ(client.create(kMask, callback), nullptr);
    ASSERT_TRUE(server.accept());
    EXPECT_EQ(server.next().type, ClientMessageType::RequestGrant);
    EXPECT_EQ(client.create(kMask, callback), nullptr);
    EXPECT_FALSE(server.isCalled()) << "it is asked for already";
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(TapServerClientTest, AGrantThatTheServerDoesNotSeeIsSaidAndTriedAgain) {
    tap = client.create(kMask, callback);
    ASSERT_TRUE(server.accept());
    server.next(); // hello
    server.next(); // create
    server.send({.type = ServerMessageType::Refused, .reason = Refusal::NotGranted});
    server.hangUp();
    EXPECT_TRUE(waitFor([&] {
        place().loop.runPending();
        return !log.lines.isEmpty();
    }));
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral(
                               "The tap server has no grant of this user; touches pass until it has")));
    EXPECT_TRUE(waitFor([&] {
        place().loop.advanceBy(5s);
        return server.isCalled();
    }));
}

TEST_F(TapServerClientTest, AServerThatIsNotThereYetIsFound) {
    server.die();
    QFile::remove(server.path());
    tap = client.create(kMask, callback);
    EXPECT_NE(tap, nullptr);
    EXPECT_EQ(log.lines.size(), 1);
    server.listen();
    ASSERT_TRUE(server.accept()) << "its folder changed";
}

TEST_F(TapServerClientTest, AServerThatDiesIsSaidOnceAndTheTapIsInstalledAgainWhenItIsBack) {
    install();
    server.die();
    EXPECT_TRUE(waitFor([&] {
        place().loop.runPending();
        return !log.lines.isEmpty();
    }));
    place().loop.advanceBy(60s); // tried in vain
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("The tap server went away; touches pass until it is back")));
    server.listen(); // its folder changes, which is noticed without waiting
    ASSERT_TRUE(server.accept());
    server.welcome();
    finishInstalling();
    EXPECT_THAT(log.lines, testing::Contains(QStringLiteral("The tap server has installed the tap")));
    server.send(frame(1, 1));
    expectVerdict(1, false);
}

TEST_F(TapServerClientTest, AServerThatDoesNotListenYetIsTriedAgain) {
    server.die();
    tap = client.create(kMask, callback);
    EXPECT_NE(tap, nullptr);
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("The tap server does not answer; touches pass until it does")));
    server.listen();
    place().loop.advanceBy(5s);
    ASSERT_TRUE(server.accept());
    EXPECT_EQ(server.next().type, ClientMessageType::Hello);
}

TEST_F(TapServerClientTest, AServerThatHangsUpAndStaysIsTriedAgain) {
    install();
    server.hangUp(); // its folder does not change
    EXPECT_TRUE(waitFor([&] {
        place().loop.runPending();
        return !log.lines.isEmpty();
    }));
    EXPECT_FALSE(server.isCalled());
    place().loop.advanceBy(5s);
    ASSERT_TRUE(server.accept());
    EXPECT_EQ(server.next().type, ClientMessageType::Hello);
}

TEST_F(TapServerClientTest, AServerThatStaysAwayIsTriedLessAndLess) {
    server.die();
    tap = client.create(kMask, callback);
    place().loop.advanceBy(80s); // tried in vain after 5, 15, 35 and 75 s
    server.listen();
    place().loop.advanceBy(70s);
    EXPECT_FALSE(server.isCalled());
    place().loop.advanceBy(10s); // and again after 155 s
    EXPECT_TRUE(server.isCalled());
}

TEST_F(TapServerClientTest, ABusyServerIsAskedAgain) {
    tap = client.create(kMask, callback);
    ASSERT_TRUE(server.accept());
    server.next();
    server.next();
    server.welcome();
    server.send({.type = ServerMessageType::Refused, .reason = Refusal::Busy});
    EXPECT_TRUE(waitFor([&] { return !log.lines.isEmpty(); }));
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral(
                               "The tap server serves somebody else; touches pass until it is free")));
    EXPECT_EQ(server.received(), std::nullopt);
    place().loop.advanceBy(5s);
    EXPECT_EQ(server.next().type, ClientMessageType::CreateTap);
}

TEST_F(TapServerClientTest, AServerOfAnotherVersionIsSaidInOneLine) {
    tap = client.create(kMask, callback);
    source = tap->createRunLoopSource();
    tap->setEnabled(true);
    ASSERT_TRUE(server.accept());
    for (int tries = 0; tries < 10; ++tries) {
        isOfAnotherVersion();
        place().loop.advanceBy(299s);
        EXPECT_FALSE(server.isCalled()) << "a try may start the server";
        place().loop.advanceBy(1s);
        ASSERT_TRUE(server.accept());
    }
    EXPECT_THAT(log.lines, ElementsAre(kAnotherVersion));
    server.welcome();
    finishInstalling();
    EXPECT_THAT(log.lines,
                ElementsAre(kAnotherVersion, QStringLiteral("The tap server has installed the tap")));
}

TEST_F(TapServerClientTest, AServerThatIsExchangedForOneOfAnotherVersionIsSaidToBe) {
    install();
    server.hangUp(); // the socket stays
    EXPECT_TRUE(waitFor([&] {
        place().loop.runPending();
        return !log.lines.isEmpty();
    }));
    place().loop.advanceBy(5s);
    ASSERT_TRUE(server.accept());
    isOfAnotherVersion();
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("The tap server went away; touches pass until it is back"),
                            kAnotherVersion));
}

TEST_F(TapServerClientTest, ANewSocketIsTriedAtOnceAlsoAfterAnotherVersion) {
    tap = client.create(kMask, callback);
    ASSERT_TRUE(server.accept());
    isOfAnotherVersion();
    server.listen();
    EXPECT_TRUE(server.accept());
}

TEST_F(TapServerClientTest, WhatAServerSaidBeforeItWentIsHeardAlsoWhereItTakesNothingMore) {
    install();
    server.send({.type = ServerMessageType::Refused, .reason = Refusal::NotGranted});
    server.hangUp();
    tap->setEnabled(false); // finds out
    EXPECT_TRUE(waitFor([&] {
        place().loop.runPending();
        return !log.lines.isEmpty();
    }));
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral(
                               "The tap server has no grant of this user; touches pass until it has")));
}

TEST_F(TapServerClientTest, AServerThatSpeaksNonsenseIsLeft) {
    install();
    server.sendBytes("nonsense", 8);
    EXPECT_TRUE(waitFor([&] {
        place().loop.runPending();
        return !log.lines.isEmpty();
    }));
    EXPECT_TRUE(server.clientHasGone());
}

} // namespace barquell::test
