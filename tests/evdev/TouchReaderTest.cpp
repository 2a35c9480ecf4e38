#include "Devices.h"

#include "evdev/TouchReader.h"

#include <gmock/gmock.h>

namespace barquell::test {

using namespace evdev;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Seen {
    TouchPhases phase;
    std::int32_t trackingId;

    bool operator==(const Seen &) const = default;
};

class TouchReaderTest : public testing::Test {
protected:
    std::vector<Seen> feed(const std::vector<InputEvent> &events) {
        for (std::size_t i = 0; i < events.size(); ++i) {
            EXPECT_EQ(reader.feed(events[i]), i + 1 == events.size()) << "event " << i;
        }
        std::vector<Seen> seen;
        for (const Touch &touch : reader.frame().touches()) {
            seen.push_back({touch.phase, touch.trackingId});
        }
        return seen;
    }

    std::vector<Seen> feed(std::initializer_list<Axis> axes) { return feed(frame(axes)); }

    TouchReader reader{palmBar()};
};

} // namespace

TEST_F(TouchReaderTest, AFingerBeginsMovesRestsAndEnds) {
    EXPECT_THAT(feed({{kAbsMtTrackingId, 7}, {kAbsMtPositionX, 100}}), ElementsAre(Seen{kTouchBegan, 7}));
    EXPECT_THAT(feed({{kAbsMtPositionX, 101}}), ElementsAre(Seen{kTouchMoved, 7}));
    EXPECT_THAT(feed({{kAbsMtPositionY, 1}}), ElementsAre(Seen{kTouchMoved, 7}));
    EXPECT_THAT(feed(frame({})), ElementsAre(Seen{kTouchStationary, 7}));
    EXPECT_THAT(feed({{kAbsMtTrackingId, -1}}), ElementsAre(Seen{kTouchEnded, 7}));
    EXPECT_THAT(feed(frame({})), IsEmpty());
}

TEST_F(TouchReaderTest, EachSlotHasAFingerOfItsOwn) {
    feed({{kAbsMtTrackingId, 1}, {kAbsMtSlot, 10}, {kAbsMtTrackingId, 2}});
    EXPECT_THAT(feed({{kAbsMtPositionX, 5}}), ElementsAre(Seen{kTouchStationary, 1}, Seen{kTouchMoved, 2}));
    EXPECT_THAT(feed({{kAbsMtSlot, 0}, {kAbsMtTrackingId, -1}}),
                ElementsAre(Seen{kTouchEnded, 1}, Seen{kTouchStationary, 2}));
}

TEST_F(TouchReaderTest, ANewContactInASlotEndsTheOldOne) {
    feed({{kAbsMtTrackingId, 1}});
    EXPECT_THAT(feed({{kAbsMtTrackingId, 2}}), ElementsAre(Seen{kTouchEnded, 1}, Seen{kTouchBegan, 2}));
    EXPECT_THAT(feed({{kAbsMtTrackingId, -1}, {kAbsMtTrackingId, 3}}),
                ElementsAre(Seen{kTouchEnded, 2}, Seen{kTouchBegan, 3}));
}

TEST_F(TouchReaderTest, AContactThatTurnsOutToBeAPalmIsCancelledAtOnce) {
    feed({{kAbsMtTrackingId, 1}});
    EXPECT_THAT(feed({{kAbsMtToolType, kMtToolPalm}}), ElementsAre(Seen{kTouchCancelled, 1}));
    EXPECT_THAT(feed({{kAbsMtPositionX, 9}}), IsEmpty());
    EXPECT_THAT(feed({{kAbsMtTrackingId, -1}}), IsEmpty());
    EXPECT_THAT(feed({{kAbsMtToolType, kMtToolFinger}, {kAbsMtTrackingId, 2}}),
                ElementsAre(Seen{kTouchBegan, 2}));
}

TEST_F(TouchReaderTest, APalmInItsLastReportIsCancelled) {
    feed({{kAbsMtTrackingId, 1}});
    EXPECT_THAT(feed({{kAbsMtToolType, kMtToolPalm}, {kAbsMtTrackingId, -1}}),
                ElementsAre(Seen{kTouchCancelled, 1}));
}

TEST_F(TouchReaderTest, PositionsAreFractionsOfTheBar) {
    feed({{kAbsMtTrackingId, 1}, {kAbsMtPositionX, 32767}, {kAbsMtPositionY, 0}});
    EXPECT_FLOAT_EQ(reader.frame().touches().front().x, 1);
    EXPECT_FLOAT_EQ(reader.frame().touches().front().y, 0);
    feed({{kAbsMtPositionX, 1 << 30}, {kAbsMtPositionY, -5}}); // a device that lies
    EXPECT_FLOAT_EQ(reader.frame().touches().front().x, 1);
    EXPECT_FLOAT_EQ(reader.frame().touches().front().y, 0);
}

TEST_F(TouchReaderTest, PositionsAreNumbersAlsoOnTheSmallestAndTheLargestAxes) {
    for (const AxisInfo &axis :
         {AxisInfo{INT32_MAX - 1, INT32_MAX, 0, 0, 0}, AxisInfo{INT32_MIN, INT32_MAX, 0, 0, 0}}) {
        DeviceDescription bar = t2Bar();
        bar.axes[kAbsMtPositionX] = axis;
        TouchReader extreme(bar);
        for (const InputEvent &event : frame({{kAbsMtTrackingId, 1}, {kAbsMtPositionX, INT32_MAX}})) {
            extreme.feed(event);
        }
        EXPECT_EQ(extreme.frame().touches().front().x, 1);
    }
}

TEST_F(TouchReaderTest, SlotsOutOfRangeChangeNothing) {
    for (const std::int32_t slot : {-1, 11, INT32_MAX, INT32_MIN}) {
        EXPECT_THAT(feed({{kAbsMtSlot, slot}, {kAbsMtTrackingId, 1}}), IsEmpty());
    }
    EXPECT_THAT(feed({{kAbsMtSlot, 0}, {kAbsMtTrackingId, 1}}), ElementsAre(Seen{kTouchBegan, 1}));
}

TEST_F(TouchReaderTest, UnknownEventsChangeNothing) {
    std::vector<InputEvent> events{{0, 0x15, 0x50, 1}, {0, kEvKey, kBtnTouch, 1}, {0, kEvAbs, kAbsX, 3}};
    for (const InputEvent &event : frame({})) {
        events.push_back(event);
    }
    EXPECT_THAT(feed(events), IsEmpty());
}

TEST_F(TouchReaderTest, AfterAnOverrunNothingIsKnownAndEveryFingerCountsAsGone) {
    feed({{kAbsMtTrackingId, 1}});
    EXPECT_FALSE(reader.feed({0, kEvSyn, kSynDropped, 0}));
    EXPECT_THAT(feed({{kAbsMtSlot, 1}, {kAbsMtTrackingId, 2}}), ElementsAre(Seen{kTouchCancelled, 1}));
    EXPECT_FALSE(anyContact(reader.contacts()));
    EXPECT_THAT(feed({{kAbsMtPositionX, 5}}), IsEmpty()); // of a finger whose beginning was lost
    EXPECT_THAT(feed({{kAbsMtTrackingId, 3}}), ElementsAre(Seen{kTouchBegan, 3}));
}

TEST_F(TouchReaderTest, AnAnswerAfterLostEventsIsBelievedAndEndsTheDoubt) {
    feed({{kAbsMtTrackingId, 3}, {kAbsMtPositionX, 5}});
    reader.feed({0, kEvSyn, kSynDropped, 0});
    Contacts held(2);
    held[0].trackingId = 3;
    held[0].axis(kAbsMtPositionX) = 9;
    held[1].trackingId = 4;
    reader.resync(held, 1);
    EXPECT_EQ(reader.contacts(), held);
    EXPECT_EQ(reader.frame().count(kTouchCancelled), 0);
    EXPECT_THAT(feed({{kAbsMtTrackingId, -1}}),
                testing::Contains(Seen{kTouchEnded, 4})); // its slot is current
}

TEST_F(TouchReaderTest, ATimeStampBelongsToItsFrame) {
    feed({{0, kEvMsc, kMscTimestamp, 1200}, {0, kEvSyn, kSynReport, 0}});
    EXPECT_EQ(reader.timestamp(), 1200);
    feed(frame({}));
    EXPECT_EQ(reader.timestamp(), std::nullopt);
}

TEST_F(TouchReaderTest, CountingGoesByPhase) {
    feed({{kAbsMtTrackingId, 1},
          {kAbsMtSlot, 1},
          {kAbsMtTrackingId, 2},
          {kAbsMtSlot, 2},
          {kAbsMtTrackingId, 3}});
    feed({{kAbsMtTrackingId, -1}, {kAbsMtSlot, 0}, {kAbsMtPositionX, 1}});
    EXPECT_EQ(reader.frame().count(kTouching), 2);
    EXPECT_EQ(reader.frame().count(kTouchEnded), 1);
    EXPECT_EQ(reader.frame().count(kTouchMoved), 1);
    EXPECT_EQ(reader.frame().count(kTouchBegan | kTouchCancelled), 0);
}

} // namespace barquell::test
