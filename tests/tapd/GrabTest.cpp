#include "Fakes.h"

#include "evdev/Devices.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class GrabTest : public TapdTest {
protected:
    std::size_t linesWith(const std::string &text) const {
        return static_cast<std::size_t>(
            std::count_if(log.lines.begin(), log.lines.end(),
                          [&](const auto &line) { return line.find(text) != std::string::npos; }));
    }
};

} // namespace

TEST_F(GrabTest, WithoutATapABarIsLeftAlone) {
    plug(bar);
    hello(client);
    EXPECT_FALSE(server.reads(bar));
    EXPECT_FALSE(bar.hasClone);
}

TEST_F(GrabTest, TheGrabWaitsUntilReadersKnowTheClone) {
    plug(bar);
    hello(client);
    create(client);
    EXPECT_TRUE(bar.hasClone);
    EXPECT_FALSE(bar.grabbed);
    announce(bar);
    EXPECT_TRUE(bar.grabbed);
}

TEST_F(GrabTest, ABarThatComesLaterIsHeldAsWell) {
    hello(client);
    create(client);
    plug(bar);
    announce(bar);
    EXPECT_TRUE(bar.grabbed);
    EXPECT_EQ(client.heard.back().type, ServerMessageType::Bars);
    EXPECT_EQ(client.heard.back().barsGrabbed, 1);
}

TEST_F(GrabTest, ATapWithoutGesturesHoldsNoBar) {
    plug(bar);
    hello(client);
    create(client, maskOf(EventType::FlagsChanged));
    EXPECT_FALSE(bar.hasClone);
    EXPECT_FALSE(server.reads(bar));
}

TEST_F(GrabTest, AFingerOnTheBarPutsTheGrabOff) {
    plug(bar);
    bar.down(0, 100);
    bar.report(); // before anybody looked
    hello(client);
    create(client);
    announce(bar);
    EXPECT_FALSE(bar.grabbed);
    bar.move(0, 200);
    report(bar);
    EXPECT_FALSE(bar.grabbed);
    EXPECT_EQ(bar.grabs, 0);
    bar.up(0);
    report(bar);
    EXPECT_TRUE(bar.grabbed);
    EXPECT_THAT(bar.seen, IsEmpty()) << "the touch was the real bar's alone";
}

TEST_F(GrabTest, ATouchThatCameAndWentInTheMomentOfTheGrabPutsItOffUntilTheNextOne) {
    plug(bar);
    hello(client);
    create(client);
    bar.tapAtGrab = true;
    announce(bar);
    EXPECT_FALSE(bar.grabbed) << "the others may still hold that finger";
    bar.down(0, 100);
    report(bar);
    EXPECT_FALSE(bar.grabbed);
    bar.up(0);
    report(bar);
    EXPECT_TRUE(bar.grabbed);
    EXPECT_THAT(bar.seen, IsEmpty()) << "both touches were the real bar's alone";
}

TEST_F(GrabTest, AFingerThatComesInTheMomentOfTheGrabPutsItOff) {
    plug(bar);
    bar.fingerAfterGrab = 100;
    hello(client);
    create(client);
    announce(bar);
    EXPECT_EQ(bar.grabs, 1);
    EXPECT_FALSE(bar.grabbed);
    bar.up(0);
    report(bar);
    EXPECT_TRUE(bar.grabbed);
}

TEST_F(GrabTest, AFingerThatLeftWhileNobodyLookedIsNotWaitedFor) {
    plug(bar);
    hello(client);
    create(client);
    bar.down(0, 100);
    report(bar);
    announce(bar);
    destroy(client);
    later(kLinger);
    bar.up(0);
    report(bar);
    ASSERT_TRUE(bar.lost) << "a bar that nobody wants is not read";
    create(client);
    announce(bar);
    EXPECT_TRUE(bar.grabbed);
}

TEST_F(GrabTest, ABarThatSomebodyElseHasIsTriedAgainAtEachFrameWithOneLine) {
    plug(bar);
    bar.refusesGrab = true;
    hello(client);
    create(client);
    announce(bar);
    tapAt(1);
    tapAt(2);
    EXPECT_EQ(bar.grabs, 3);
    EXPECT_EQ(linesWith("somebody else"), 1);
    bar.refusesGrab = false;
    tapAt(3);
    EXPECT_TRUE(bar.grabbed);
}

TEST_F(GrabTest, WithoutACloneABarIsLeftAloneWithOneLine) {
    plug(bar);
    bar.refusesClone = true;
    hello(client);
    create(client);
    tapAt(1);
    tapAt(2);
    EXPECT_EQ(bar.grabs, 0);
    EXPECT_EQ(linesWith("no clone"), 1);
}

TEST_F(GrabTest, ABarWhoseCloneFailsIsGivenBack) {
    startTapping();
    setEnabled(client, false);
    bar.cloneIsBroken = true;
    tapAt(1);
    EXPECT_FALSE(bar.grabbed);
    EXPECT_FALSE(bar.hasClone);
    tapAt(2);
    EXPECT_EQ(bar.grabs, 1) << "not tried again for this tap";
    EXPECT_EQ(linesWith("takes no more"), 1);
}

TEST_F(GrabTest, ABarThatFailedIsTriedAnewForTheNextTap) {
    startTapping();
    bar.cloneIsBroken = true;
    tapAt(100);
    judge(client, 1, true);
    ASSERT_FALSE(bar.hasClone);
    bar.cloneIsBroken = false;
    destroy(client);
    EXPECT_FALSE(bar.hasClone);
    create(client);
    announce(bar);
    EXPECT_TRUE(bar.grabbed) << "though it was wanted all the time";
}

TEST_F(GrabTest, TheBarIsGivenBackSomeTimeAfterTheTap) {
    startTapping();
    destroy(client);
    later(199ms);
    EXPECT_TRUE(bar.grabbed);
    later(1ms);
    EXPECT_FALSE(bar.grabbed);
    EXPECT_FALSE(bar.hasClone);
    EXPECT_EQ(client.heard.back().type, ServerMessageType::Bars);
    EXPECT_EQ(client.heard.back().barsGrabbed, 0);
    EXPECT_EQ(server.deadline(), std::nullopt);
}

TEST_F(GrabTest, ANewTapAtOnceKeepsTheGrab) {
    startTapping();
    destroy(client);
    hello(other);
    create(other);
    later(10s);
    EXPECT_TRUE(bar.grabbed);
    EXPECT_EQ(bar.grabs, 1);
    EXPECT_EQ(bar.clones, 1);
}

TEST_F(GrabTest, AFingerOnTheBarPutsGivingBackOff) {
    startTapping();
    setEnabled(client, false);
    bar.down(0, 100);
    report(bar);
    server.disconnected(client, now);
    later(10s);
    EXPECT_TRUE(bar.grabbed);
    bar.move(0, 200);
    report(bar);
    EXPECT_THAT(bar.seen.back(), ElementsAre(200)) << "it goes on";
    bar.up(0);
    report(bar);
    EXPECT_THAT(bar.seen.back(), IsEmpty());
    EXPECT_FALSE(bar.grabbed);
}

TEST_F(GrabTest, AFingerStillUnreadPutsGivingBackOff) {
    startTapping();
    destroy(client);
    bar.down(0, 100);
    later(kLinger);
    EXPECT_TRUE(bar.grabbed);
    EXPECT_THAT(bar.seen, ElementsAre(std::vector<std::int32_t>{100})) << "it was asked for and passed on";
    bar.up(0);
    report(bar);
    EXPECT_FALSE(bar.grabbed);
}

TEST_F(GrabTest, UnpluggingLiftsTheFingersOfTheClone) {
    startTapping();
    setEnabled(client, false);
    bar.down(0, 100);
    bar.down(1, 200);
    report(bar);
    bar.unplugged = true;
    server.barRemoved(bar); // the bar checks that its clone goes without fingers
    EXPECT_THAT(bar.seen.back(), IsEmpty());
    EXPECT_FALSE(bar.hasClone);
    EXPECT_EQ(client.heard.back().barsKnown, 0);
}

TEST_F(GrabTest, WhereTheCloneKnowsPalmsFingersAreCancelled) {
    FakeBar palm(palmBar());
    startTapping();
    plug(palm);
    announce(palm);
    setEnabled(client, false);
    palm.down(0, 100);
    report(palm);
    palm.sent.clear();
    server.barRemoved(palm);
    const auto tool = std::find_if(palm.sent.begin(), palm.sent.end(), [](const evdev::InputEvent &event) {
        return event.code == evdev::kAbsMtToolType && event.value == evdev::kMtToolPalm;
    });
    const auto end = std::find_if(palm.sent.begin(), palm.sent.end(), [](const evdev::InputEvent &event) {
        return event.code == evdev::kAbsMtTrackingId && event.value == -1;
    });
    ASSERT_NE(tool, palm.sent.end());
    EXPECT_LT(tool, end);
    EXPECT_TRUE(std::any_of(tool, end, [](const evdev::InputEvent &event) {
        return event.type == evdev::kEvSyn;
    })) << "the palm is reported before its contact ends";
}

TEST_F(GrabTest, ANewCloneOfTheSameBarStartsAfresh) {
    startTapping();
    setEnabled(client, false);
    bar.down(2, 100);
    report(bar);
    bar.up(2);
    report(bar);
    destroy(client);
    later(kLinger);
    ASSERT_FALSE(bar.hasClone);
    create(client);
    announce(bar);
    bar.down(2, 300);
    report(bar);
    ASSERT_EQ(bar.cloneHolds().size(), 3U) << "the finger is in its own slot";
    EXPECT_GE(bar.cloneHolds()[2].trackingId, 0);
}

TEST_F(GrabTest, APluggedBarIsHeldAgain) {
    startTapping();
    server.barRemoved(bar);
    FakeBar again(t2Bar());
    plug(again);
    announce(again);
    EXPECT_TRUE(again.grabbed);
    server.barRemoved(again);
}

TEST_F(GrabTest, TooManyBarsAreLeftAlone) {
    std::vector<std::unique_ptr<FakeBar>> bars;
    for (std::size_t i = 0; i < tapd::Bars::kMaximum; ++i) {
        plug(*bars.emplace_back(std::make_unique<FakeBar>(t2Bar())));
    }
    EXPECT_FALSE(server.barAdded(bar.description, bar, now));
    EXPECT_EQ(linesWith("too many bars"), 1);
    for (const auto &one : bars) {
        server.barRemoved(*one);
    }
}

TEST_F(GrabTest, ACloneSaysWhatItsBarSays) {
    evdev::DeviceDescription wide = palmBar();
    wide.axes[evdev::kAbsMtSlot].maximum = 255;
    wide.axes[evdev::kAbsMtPositionX].resolution = 100;
    wide.otherCodes[evdev::kEvMsc].set(evdev::kMscTimestamp);
    wide.otherCodes[0x15].set(1); // EV_FF
    const auto clone = tapd::cloneDescription(wide);
    EXPECT_EQ(clone.name, wide.name);
    EXPECT_EQ(clone.axes.at(evdev::kAbsMtPositionX), wide.axes.at(evdev::kAbsMtPositionX));
    EXPECT_EQ(clone.axes.at(evdev::kAbsMtSlot).maximum, 99);
    EXPECT_THAT(clone.otherCodes, SizeIs(1));
}

} // namespace barquell::test
