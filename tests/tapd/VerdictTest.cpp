#include "Fakes.h"

#include "evdev/Devices.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Positions = std::vector<std::int32_t>;

namespace {

class VerdictTest : public TapdTest {
protected:
    VerdictTest() { startTapping(); }
};

} // namespace

TEST_F(VerdictTest, AFrameWaitsForItsVerdict) {
    bar.down(0, 100);
    report(bar);
    const auto heard = client.take();
    ASSERT_THAT(heard, SizeIs(1));
    EXPECT_EQ(heard[0].type, ServerMessageType::Frame);
    EXPECT_THAT(bar.seen, IsEmpty());
    judge(client, heard[0].frame, true);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}));
}

TEST_F(VerdictTest, AllFramesAreOutAtOnceAndPassInTheirOrder) {
    tapAt(100);
    tapAt(200);
    EXPECT_THAT(client.take(), SizeIs(4));
    for (std::uint64_t frame = 1; frame <= 4; ++frame) {
        judge(client, frame, true);
    }
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}, Positions{}, Positions{200}, Positions{}));
}

TEST_F(VerdictTest, NothingOfASwallowedTouchIsSeen) {
    tapAt(100);
    judge(client, 1, false);
    judge(client, 2, false);
    EXPECT_THAT(bar.sent, IsEmpty());
}

TEST_F(VerdictTest, ATouchThatIsLetThroughLateIsSeenWhole) {
    bar.down(0, 100);
    report(bar);
    bar.move(0, 150);
    report(bar);
    judge(client, 1, false);
    judge(client, 2, true);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{150}));
}

TEST_F(VerdictTest, AFingerThatLeavesUnseenLeavesTheClone) {
    bar.down(0, 100);
    bar.down(1, 900);
    report(bar);
    judge(client, 1, true);
    bar.up(0);
    bar.move(1, 950);
    report(bar);
    judge(client, 2, false);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100, 900}, Positions{900}));
    bar.up(1);
    report(bar);
    judge(client, 3, false);
    EXPECT_THAT(bar.seen.back(), IsEmpty());
}

TEST_F(VerdictTest, AFrameTellsPhasesPositionsAndModifiers) {
    server.keyboardAdded(1);
    server.keyboardRead(1, std::vector<evdev::InputEvent>{{0, evdev::kEvKey, 125, 1}});
    bar.down(0, 32767);
    report(bar);
    bar.down(1, 0);
    report(bar);
    const ServerMessage frame = client.take().back();
    EXPECT_EQ(frame.flags, kFlagCommand | kFlagLeftCommand);
    EXPECT_EQ(touchCount(frame, kTouchBegan), 1);
    EXPECT_EQ(touchCount(frame, kTouching), 2);
    ASSERT_EQ(frame.listedTouches, 2);
    EXPECT_EQ(frame.touches[0], (Touch{kTouchStationary, 0, 1.0F, 0.0F}));
    EXPECT_EQ(frame.touches[1], (Touch{kTouchBegan, 1, 0.0F, 0.0F}));
}

TEST_F(VerdictTest, WhatKeyboardsSayComesBeforeTheFramesAfterIt) {
    server.keyboardAdded(1);
    server.keyboardRead(1, std::vector<evdev::InputEvent>{{0, evdev::kEvKey, 125, 1}});
    bar.down(0, 1);
    report(bar);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::FlagsChanged, ServerMessageType::Frame));
}

TEST_F(VerdictTest, MoreThanSixteenTouchesAreCountedButNotListed) {
    server.barRemoved(bar);
    evdev::DeviceDescription wide = t2Bar();
    wide.axes[evdev::kAbsMtSlot].maximum = 255;
    FakeBar wideBar(wide);
    plug(wideBar);
    announce(wideBar);
    for (std::size_t slot = 0; slot < 120; ++slot) {
        wideBar.down(slot, static_cast<std::int32_t>(slot));
    }
    client.take();
    report(wideBar);
    const ServerMessage frame = client.take().back();
    EXPECT_EQ(frame.listedTouches, 16);
    EXPECT_EQ(touchCount(frame, kTouchBegan), 120);
    judge(client, frame.frame, true);
    EXPECT_THAT(wideBar.seen.back(), SizeIs(tapd::kCloneSlots));
    EXPECT_TRUE(std::none_of(wideBar.sent.begin(), wideBar.sent.end(), [](const evdev::InputEvent &event) {
        return event.code == evdev::kAbsMtSlot && event.value >= tapd::kCloneSlots;
    })) << "a clone has no more slots; the kernel would take what follows for the slot before";
    server.barRemoved(wideBar);
}

TEST_F(VerdictTest, ADisabledTapPassesWithoutAsking) {
    setEnabled(client, false);
    tapAt(100);
    EXPECT_THAT(client.take(), IsEmpty());
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}, Positions{}));
}

TEST_F(VerdictTest, FramesThatAreOutPassWhenTheTapIsDisabled) {
    tapAt(100);
    setEnabled(client, false);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}, Positions{}));
    judge(client, 1, false);
    judge(client, 2, false);
    EXPECT_FALSE(client.closed) << "late verdicts are no offence";
    EXPECT_THAT(bar.seen, SizeIs(2));
}

TEST_F(VerdictTest, NoAnswerWithinASecondDisablesTheTap) {
    tapAt(100);
    client.take();
    EXPECT_EQ(server.deadline(), now + kVerdictLimit);
    later(999'999us);
    EXPECT_THAT(bar.seen, IsEmpty());
    later(1us);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}, Positions{}));
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::DisabledByTimeout));
    tapAt(200);
    EXPECT_THAT(client.take(), IsEmpty()) << "everything passes";
    EXPECT_THAT(bar.seen, SizeIs(4));
}

TEST_F(VerdictTest, EachFrameHasASecondFromWhenItWasSent) {
    bar.down(0, 100);
    report(bar);
    later(900ms);
    bar.up(0);
    report(bar);
    judge(client, 1, true);
    EXPECT_EQ(server.deadline(), now + kVerdictLimit);
    later(900ms);
    judge(client, 2, true);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::Frame, ServerMessageType::Frame));
    EXPECT_EQ(server.deadline(), std::nullopt);
}

TEST_F(VerdictTest, AnAnswerToOneFrameBuysTheNextNoTime) {
    tapAt(100);
    client.take();
    later(900ms);
    judge(client, 1, true);
    later(100ms);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::DisabledByTimeout));
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}, Positions{}));
}

TEST_F(VerdictTest, EnablingAgainAsksAgain) {
    tapAt(100);
    later(kVerdictLimit);
    setEnabled(client, true);
    client.take();
    tapAt(200);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::Frame, ServerMessageType::Frame));
    judge(client, 1, true); // of before
    judge(client, 3, false);
    judge(client, 4, false);
    EXPECT_THAT(bar.seen, SizeIs(2)) << "the first touch alone";
    EXPECT_FALSE(client.closed);
}

TEST_F(VerdictTest, AVerdictOutOfTurnEndsTheClient) {
    tapAt(100);
    judge(client, 2, false);
    EXPECT_TRUE(client.closed);
    EXPECT_EQ(client.heard.back().reason, Refusal::Malformed);
    EXPECT_THAT(bar.seen, SizeIs(2)) << "its frames pass";
}

TEST_F(VerdictTest, ALateVerdictOnATapThatEndedDoesNotJudgeTheNextOnesFrame) {
    bar.down(0, 100);
    report(bar);
    destroy(client);
    bar.up(0);
    report(bar);
    create(client);
    setEnabled(client, true);
    client.take();
    bar.down(0, 200);
    report(bar);
    ASSERT_THAT(client.heard, SizeIs(1));
    EXPECT_EQ(client.heard[0].frame, 2U);
    const auto before = bar.seen.size();
    judge(client, 1, true);
    EXPECT_FALSE(client.closed);
    EXPECT_THAT(bar.seen, SizeIs(before));
    judge(client, 2, true);
    EXPECT_THAT(bar.seen, SizeIs(before + 1));
}

TEST_F(VerdictTest, AVerdictOnAFrameThatNeverWasEndsTheClient) {
    judge(client, 1, false);
    EXPECT_TRUE(client.closed);
}

TEST_F(VerdictTest, ADeadClientsFramesPass) {
    bar.down(0, 100);
    report(bar);
    server.disconnected(client, now);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}));
    bar.up(0);
    report(bar);
    EXPECT_THAT(bar.seen.back(), IsEmpty());
}

TEST_F(VerdictTest, AClientThatReadsNothingIsOneThatDoesNotAnswer) {
    client.full = true;
    tapAt(100);
    EXPECT_THAT(bar.seen, SizeIs(2));
    EXPECT_TRUE(server.owes(client));
    client.full = false;
    server.writable(client);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::DisabledByTimeout));
    EXPECT_FALSE(server.owes(client));
}

TEST_F(VerdictTest, ABarIsNotReadWhileItsFramesAreManyAndIsAskedAfterwards) {
    int frames = 0;
    bar.down(0, 1000);
    for (; server.reads(bar) && frames < 1000; ++frames) {
        bar.move(0, frames);
        report(bar);
    }
    EXPECT_LE(frames, 128);
    EXPECT_GT(frames, 64);
    bar.up(0);
    report(bar); // and nobody reads it
    const auto heard = client.take();
    for (const ServerMessage &frame : heard) {
        judge(client, frame.frame, false);
    }
    EXPECT_TRUE(server.reads(bar));
    setEnabled(client, false);
    bar.down(1, 5);
    report(bar);
    EXPECT_THAT(bar.seen.back(), ElementsAre(5)) << "the finger of before is not on it";
}

TEST_F(VerdictTest, LostEventsAreAskedFor) {
    setEnabled(client, false);
    bar.down(0, 100);
    bar.down(1, 900);
    report(bar);
    bar.up(0);
    bar.move(1, 950);
    bar.report(); // lost
    server.barRead(bar, std::vector<evdev::InputEvent>{{0, evdev::kEvSyn, evdev::kSynDropped, 0}}, now);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100, 900}, Positions{950}));
}

TEST_F(VerdictTest, WhatIsOlderThanTheAnswerAfterLostEventsIsNotRead) {
    setEnabled(client, false);
    bar.down(0, 100);
    report(bar);
    server.barRead(bar,
                   std::vector<evdev::InputEvent>{{0, evdev::kEvSyn, evdev::kSynDropped, 0},
                                                  {0, evdev::kEvSyn, evdev::kSynReport, 0},
                                                  {0, evdev::kEvAbs, evdev::kAbsMtPositionX, 50},
                                                  {0, evdev::kEvSyn, evdev::kSynReport, 0}},
                   now);
    EXPECT_THAT(bar.seen, ElementsAre(Positions{100}));
}

TEST_F(VerdictTest, TheFramesOfAnUnpluggedBarAreStillJudgedInTurn) {
    FakeBar second(t2Bar());
    plug(second);
    announce(second);
    bar.down(0, 100);
    report(bar);
    second.down(0, 200);
    report(second);
    bar.unplugged = true;
    server.barRemoved(bar);
    judge(client, 1, true);
    judge(client, 2, true);
    EXPECT_THAT(bar.seen, IsEmpty());
    EXPECT_THAT(second.seen, ElementsAre(Positions{200}));
    server.barRemoved(second);
}

} // namespace barquell::test
