#include "Fakes.h"

#include "evdev/Devices.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;
using tapd::Front;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

/// Two users, each with a client, and the first one in front.
class FrontTest : public TapdTest {
protected:
    FrontTest() {
        other.uid = 1001;
        grants.give(other.uid);
        front(client);
        server.keyboardAdded(1);
    }

    void front(const FakeLink &link) { server.frontChanged(Front::of(link.uid), now); }
    void behind() { server.frontChanged(Front::nobody(), now); }
    void press(std::uint16_t key, int value) {
        server.keyboardRead(1, std::vector<evdev::InputEvent>{{0, evdev::kEvKey, key, value}});
    }

    /// The second user's client has an enabled tap as well.
    void otherTaps() {
        hello(other);
        create(other);
        setEnabled(other, true);
        other.take();
    }
};

constexpr std::uint16_t kFnKey = 0x1d0;

} // namespace

TEST_F(FrontTest, AWelcomeTellsWhetherTheUserIsInFront) {
    hello(client);
    hello(other);
    EXPECT_EQ(client.heard.at(0).inFront, 1U);
    EXPECT_EQ(other.heard.at(0).inFront, 0U);
}

TEST_F(FrontTest, WhereNobodySaysEverybodyIs) {
    server.frontChanged(Front::everybody(), now);
    hello(client);
    hello(other);
    EXPECT_EQ(client.heard.at(0).inFront, 1U);
    EXPECT_EQ(other.heard.at(0).inFront, 1U);
}

TEST_F(FrontTest, AnotherUsersTapIsMadeAndRests) {
    startTapping();
    hello(other);
    create(other);
    EXPECT_EQ(other.heard.back().type, ServerMessageType::TapCreated);
    setEnabled(other, true);
    other.take();
    tapAt(1);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::Frame, ServerMessageType::Frame));
    EXPECT_THAT(other.heard, IsEmpty());
}

TEST_F(FrontTest, AUserHasOneTap) {
    startTapping();
    FakeLink second;
    hello(second);
    create(second);
    expectRefused(second, Refusal::Busy);
    FakeLink third;
    otherTaps();
    third.uid = other.uid;
    hello(third);
    create(third);
    expectRefused(third, Refusal::Busy);
}

TEST_F(FrontTest, WhereEverybodyIsInFrontTheFirstTapWins) {
    server.frontChanged(Front::everybody(), now);
    startTapping();
    hello(other);
    create(other);
    expectRefused(other, Refusal::Busy);
    EXPECT_FALSE(other.closed);
}

TEST_F(FrontTest, TheTapGoesToTheUserInFrontAndBack) {
    startTapping();
    otherTaps();
    front(other);
    EXPECT_TRUE(bar.grabbed) << "it is held for the next one";
    tapAt(1);
    EXPECT_THAT(client.heard, IsEmpty()) << "it rests and is told nothing";
    EXPECT_THAT(other.take(), SizeIs(3)); // the modifiers as well
    judge(other, 1, false);
    judge(other, 2, false);
    EXPECT_THAT(bar.seen, IsEmpty());
    front(client);
    client.take();
    tapAt(2);
    ASSERT_THAT(client.heard, SizeIs(2));
    EXPECT_EQ(client.heard[0].frame, 1U) << "nothing tells how often the other one touched";
    EXPECT_THAT(other.heard, IsEmpty());
    EXPECT_EQ(bar.grabs, 1);
}

TEST_F(FrontTest, FramesOutPassWhenTheirTapBeginsToRest) {
    startTapping();
    otherTaps();
    bar.down(0, 7);
    report(bar);
    front(other);
    EXPECT_THAT(bar.seen, ElementsAre(ElementsAre(7)));
    judge(client, 1, false);
    EXPECT_FALSE(client.closed) << "its verdict comes late";
    EXPECT_EQ(server.deadline(), std::nullopt);
}

TEST_F(FrontTest, AFingerThatPassedUnderOneUserEndsUnderTheNextThoughThatOneSwallows) {
    startTapping();
    otherTaps();
    bar.down(0, 7);
    bar.down(1, 9);
    report(bar);
    judge(client, 1, true);
    front(other);
    bar.move(0, 8);
    report(bar);
    judge(other, 1, false);
    bar.up(0);
    report(bar);
    judge(other, 2, false);
    EXPECT_LT(bar.cloneHolds().at(0).trackingId, 0);
    bar.up(1);
    report(bar);
    judge(other, 3, false);
    EXPECT_FALSE(evdev::anyContact(bar.cloneHolds()));
}

TEST_F(FrontTest, WithNobodyInFrontTouchesFlowAndTheBarIsGivenBack) {
    startTapping();
    bar.down(0, 7);
    report(bar);
    behind();
    EXPECT_THAT(bar.seen, ElementsAre(ElementsAre(7)));
    EXPECT_TRUE(bar.grabbed) << "a finger is on it";
    bar.up(0);
    report(bar);
    EXPECT_FALSE(bar.grabbed);
    EXPECT_FALSE(bar.hasClone);
    EXPECT_FALSE(client.closed);
    EXPECT_THAT(client.takeTypes(), Not(Contains(ServerMessageType::DisabledByTimeout)));
    front(client);
    announce(bar);
    EXPECT_TRUE(bar.grabbed);
    client.take();
    tapAt(1);
    EXPECT_THAT(client.take(), SizeIs(2)) << "it is still enabled";
}

TEST_F(FrontTest, ATapThatIsDisabledWhileItRestsDoesNotAskWhenItActs) {
    startTapping();
    behind();
    setEnabled(client, false);
    front(client);
    announce(bar);
    client.take();
    tapAt(1);
    EXPECT_THAT(client.heard, IsEmpty());
    EXPECT_THAT(bar.seen, SizeIs(2));
}

TEST_F(FrontTest, ABarThatFailedOneUserIsTriedForTheNext) {
    plug(bar);
    bar.refusesClone = true;
    hello(client);
    create(client);
    otherTaps();
    bar.refusesClone = false;
    front(other);
    EXPECT_TRUE(bar.hasClone);
}

TEST_F(FrontTest, AVerdictOnAnotherUsersFrameEndsTheClient) {
    startTapping();
    otherTaps();
    tapAt(1);
    judge(other, 1, true);
    expectRefused(other, Refusal::Malformed);
    EXPECT_THAT(bar.seen, IsEmpty());
    EXPECT_FALSE(client.closed);
}

TEST_F(FrontTest, AVerdictOnAnotherUsersPastFrameEndsTheClient) {
    startTapping();
    otherTaps();
    tapAt(1);
    judge(client, 1, true);
    judge(client, 2, true);
    judge(other, 1, true);
    expectRefused(other, Refusal::Malformed);
    EXPECT_TRUE(other.closed) << "or it would learn how often the other one touched";
}

TEST_F(FrontTest, ATapThatRestsEndsWithoutTouchingTheOther) {
    startTapping();
    otherTaps();
    bar.down(0, 7);
    report(bar);
    setEnabled(other, false);
    destroy(other);
    EXPECT_THAT(bar.seen, IsEmpty()) << "the frame is still out";
    server.disconnected(other, now);
    EXPECT_THAT(bar.seen, IsEmpty());
    judge(client, 1, true);
    EXPECT_THAT(bar.seen, SizeIs(1));
}

TEST_F(FrontTest, ModifiersAreForWhoIsInFrontAlone) {
    hello(client);
    hello(other);
    client.take();
    other.take();
    press(kFnKey, 1);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::FlagsChanged));
    EXPECT_THAT(other.heard, IsEmpty());
    FakeLink late;
    late.uid = other.uid;
    hello(late);
    EXPECT_EQ(late.heard.at(0).flags, 0U);
    EXPECT_EQ(late.heard.at(0).inFront, 0U);
}

TEST_F(FrontTest, WhoComesToTheFrontHearsTheCurrentWordOnce) {
    hello(client);
    hello(other);
    press(kFnKey, 1);
    client.take();
    other.take();
    front(other);
    ASSERT_THAT(other.heard, SizeIs(1));
    EXPECT_EQ(other.heard[0].flags, kFlagFn);
    EXPECT_THAT(client.heard, IsEmpty());
    press(kFnKey, 0);
    EXPECT_THAT(client.heard, IsEmpty());
    EXPECT_THAT(other.heard, SizeIs(2));
    front(client);
    ASSERT_THAT(client.heard, SizeIs(1));
    EXPECT_EQ(client.heard[0].flags, 0U);
}

TEST_F(FrontTest, AWordThatWasOwedIsNotToldBehindAnotherUser) {
    hello(client);
    client.take();
    client.full = true;
    press(kFnKey, 1);
    front(other);
    client.full = false;
    server.writable(client);
    EXPECT_THAT(client.heard, IsEmpty());
    EXPECT_FALSE(server.owes(client));
}

TEST_F(FrontTest, BarsAreForEverybody) {
    hello(other);
    other.take();
    plug(bar);
    EXPECT_THAT(other.takeTypes(), ElementsAre(ServerMessageType::Bars));
}

TEST_F(FrontTest, AWelcomeNamesTheOwnTapBeforeTheOneThatActs) {
    startTapping();
    hello(other);
    EXPECT_EQ(other.heard.at(0).holder, kAnotherUser);
    create(other);
    FakeLink second;
    second.uid = other.uid;
    other.pid = 99;
    hello(second);
    EXPECT_EQ(second.heard.at(0).holder, 99);
}

TEST_F(FrontTest, AGrantThatEndedUntoldEndsTheClientWhenTheFrontChanges) {
    startTapping();
    grants.readings[client.uid] = {grant::State::Invalid, "its grant names somebody else"}; // deleted
    behind();
    expectRefused(client, Refusal::NotGranted);
    EXPECT_TRUE(client.closed);
}

TEST_F(FrontTest, TheUserInFrontFindsRoomBesideAnyNumberOfOthers) {
    std::vector<std::unique_ptr<FakeLink>> links;
    for (std::size_t i = 0; i < tapd::TapServer::kMaximumClients; ++i) {
        links.push_back(std::make_unique<FakeLink>());
        links.back()->uid = 2000 + static_cast<std::uint32_t>(i);
        connect(*links.back());
    }
    connect(other);
    expectRefused(other, Refusal::Busy);
    std::vector<std::unique_ptr<FakeLink>> own;
    for (std::size_t i = 0; i < tapd::TapServer::kMaximumClientsOfAUser; ++i) {
        hello(*own.emplace_back(std::make_unique<FakeLink>()));
        EXPECT_FALSE(own.back()->closed);
    }
    connect(client);
    expectRefused(client, Refusal::Busy);
}

TEST_F(FrontTest, WhatIsSaidAgainChangesNothing) {
    startTapping();
    const auto lines = log.lines.size();
    front(client);
    EXPECT_THAT(client.heard, IsEmpty());
    EXPECT_EQ(log.lines.size(), lines);
}

TEST_F(FrontTest, AClientThatHasNotSpokenHearsNothingWhenItsUserComesToTheFront) {
    connect(other);
    front(other);
    EXPECT_THAT(other.heard, IsEmpty());
    EXPECT_FALSE(server.owes(other));
}

} // namespace barquell::test
