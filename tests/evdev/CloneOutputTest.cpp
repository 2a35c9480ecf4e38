#include "Devices.h"

#include "evdev/CloneOutput.h"

#include <gmock/gmock.h>

namespace barquell::test {

using namespace evdev;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::int64_t kTime = 1000;

InputEvent abs(std::uint16_t code, std::int32_t value) {
    return {kTime, kEvAbs, code, value};
}

InputEvent touchKey(std::int32_t value) {
    return {kTime, kEvKey, kBtnTouch, value};
}

const InputEvent kReport{kTime, kEvSyn, kSynReport, 0};

Slot finger(std::int32_t trackingId, std::int32_t x, std::int32_t y = 0) {
    Slot slot;
    slot.trackingId = trackingId;
    slot.axis(kAbsMtPositionX) = x;
    slot.axis(kAbsMtPositionY) = y;
    return slot;
}

class CloneOutputTest : public testing::Test {
protected:
    CloneOutput clone{palmBar()};
};

} // namespace

TEST_F(CloneOutputTest, ANewFingerIsSentWithAllItsAxes) {
    EXPECT_THAT(clone.moveTo({finger(5, 100, 60)}, kTime),
                ElementsAre(abs(kAbsMtTrackingId, 5), abs(kAbsMtPositionX, 100), abs(kAbsMtPositionY, 60),
                            touchKey(1), abs(kAbsX, 100), abs(kAbsY, 60), kReport));
}

TEST_F(CloneOutputTest, WhatTheCloneHoldsAlreadyIsNotSentAgain) {
    clone.moveTo({finger(5, 100)}, kTime);
    EXPECT_THAT(clone.moveTo({finger(5, 100)}, kTime), IsEmpty());
    EXPECT_THAT(clone.moveTo({finger(5, 101)}, kTime),
                ElementsAre(abs(kAbsMtPositionX, 101), abs(kAbsX, 101), kReport));
}

TEST_F(CloneOutputTest, TheCloneKeepsItsOwnCurrentSlot) {
    clone.moveTo({finger(5, 100), finger(6, 200)}, kTime);
    EXPECT_THAT(clone.moveTo({finger(5, 100), finger(6, 201)}, kTime),
                ElementsAre(abs(kAbsMtPositionX, 201), kReport));
    EXPECT_THAT(clone.moveTo({finger(5, 101), finger(6, 201)}, kTime),
                ElementsAre(abs(kAbsMtSlot, 0), abs(kAbsMtPositionX, 101), abs(kAbsX, 101), kReport));
}

TEST_F(CloneOutputTest, AContactThatChangedUnseenEndsWithAReportBeforeTheNewOneBegins) {
    clone.moveTo({finger(5, 100)}, kTime);
    EXPECT_THAT(clone.moveTo({finger(9, 300)}, kTime),
                ElementsAre(abs(kAbsMtTrackingId, -1), touchKey(0), kReport, abs(kAbsMtTrackingId, 9),
                            abs(kAbsMtPositionX, 300), touchKey(1), abs(kAbsX, 300), kReport));
}

TEST_F(CloneOutputTest, TheTouchKeyAndTheSingleTouchAxesFollowTheOldestFinger) {
    clone.moveTo({finger(5, 100), finger(6, 200)}, kTime);
    EXPECT_THAT(clone.moveTo({Slot(), finger(6, 200)}, kTime),
                ElementsAre(abs(kAbsMtSlot, 0), abs(kAbsMtTrackingId, -1), abs(kAbsX, 200), kReport));
    EXPECT_THAT(clone.moveTo({}, kTime),
                ElementsAre(abs(kAbsMtSlot, 1), abs(kAbsMtTrackingId, -1), touchKey(0), kReport));
}

TEST_F(CloneOutputTest, TheOldestFingerIsKnownAlsoWhereTheNumbersWrapRound) {
    clone.moveTo({finger(2, 200), finger(65535, 100)}, kTime);
    EXPECT_THAT(clone.moveTo({finger(2, 200), finger(65535, 101)}, kTime),
                ElementsAre(abs(kAbsMtPositionX, 101), abs(kAbsX, 101), kReport));
}

TEST_F(CloneOutputTest, APalmIsToldBeforeItsEndAndAFingerBeforeItsBeginning) {
    clone.moveTo({finger(5, 100)}, kTime);
    Slot palm = finger(kNoContact, 100);
    palm.axis(kAbsMtToolType) = kMtToolPalm;
    EXPECT_THAT(clone.moveTo({palm}, kTime), ElementsAre(abs(kAbsMtToolType, kMtToolPalm),
                                                         abs(kAbsMtTrackingId, -1), touchKey(0), kReport));
    EXPECT_THAT(
        clone.moveTo({finger(6, 100)}, kTime),
        ElementsAre(abs(kAbsMtToolType, kMtToolFinger), abs(kAbsMtTrackingId, 6), touchKey(1), kReport));
}

TEST_F(CloneOutputTest, AFingerThatLeftUnseenIsCancelledWhereTheCloneKnowsPalms) {
    clone.moveTo({finger(5, 100), finger(6, 200)}, kTime);
    EXPECT_THAT(clone.endLifted({finger(kNoContact, 900), finger(6, 300)}, kTime),
                ElementsAre(abs(kAbsMtSlot, 0), abs(kAbsMtToolType, kMtToolPalm), kReport,
                            abs(kAbsMtTrackingId, -1), abs(kAbsX, 200), kReport));
    EXPECT_THAT(clone.endLifted({finger(kNoContact, 900), finger(6, 300)}, kTime), IsEmpty());
}

TEST_F(CloneOutputTest, AFingerThatLeftUnseenIsElseLiftedWhereItWas) {
    CloneOutput plain(t2Bar());
    plain.moveTo({finger(5, 100)}, kTime);
    EXPECT_THAT(plain.endLifted({finger(7, 900)}, kTime),
                ElementsAre(abs(kAbsMtTrackingId, -1), touchKey(0), kReport));
}

TEST_F(CloneOutputTest, TheAxesOfASlotThatNobodyTouchesWait) {
    clone.moveTo({finger(kNoContact, 700)}, kTime);
    EXPECT_THAT(clone.moveTo({finger(5, 700)}, kTime),
                ElementsAre(abs(kAbsMtTrackingId, 5), abs(kAbsMtPositionX, 700), touchKey(1), abs(kAbsX, 700),
                            kReport));
}

TEST_F(CloneOutputTest, AxesThatTheDeviceDoesNotOfferAreNotSent) {
    CloneOutput plain(t2Bar());
    Slot slot = finger(5, 100);
    slot.axis(kAbsMtPressure) = 40;
    slot.axis(kAbsMtToolType) = kMtToolFinger + 1;
    EXPECT_THAT(plain.moveTo({slot}, kTime), ElementsAre(abs(kAbsMtTrackingId, 5), abs(kAbsMtPositionX, 100),
                                                         touchKey(1), abs(kAbsX, 100), kReport));
}

TEST_F(CloneOutputTest, ATimeStampIsSentWhileAFingerIsOnTheClone) {
    const InputEvent stamp{kTime, kEvMsc, kMscTimestamp, 77};
    EXPECT_THAT(clone.moveTo({}, kTime, 77), IsEmpty());
    clone.moveTo({finger(5, 100)}, kTime);
    EXPECT_THAT(clone.moveTo({finger(5, 100)}, kTime, 77), ElementsAre(stamp, kReport));
    EXPECT_THAT(clone.moveTo({}, kTime, 77),
                ElementsAre(abs(kAbsMtTrackingId, -1), touchKey(0), stamp, kReport));
}

} // namespace barquell::test
