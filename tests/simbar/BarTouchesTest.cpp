#include "platform/simulated/bar/BarTouches.h"
#include "platform/simulated/bar/BarModifiers.h"
#include "platform/simulated/bar/SimulatedBar.h"

#include <gtest/gtest.h>

namespace barquell::test {

namespace {

bool blocking = false;
std::vector<ModifierFlags> flagsSeen;

/// Stands for the program: holds back what touches while `blocking`, and notes the modifiers it is told.
Event *filter(EventType type, Event *event) {
    flagsSeen.push_back(event->flags());
    const bool touches = type == EventType::Gesture && event->gestureKind() == kGestureKindDirectTouch &&
                         event->touchCount(kTouching) > 0;
    return touches && blocking ? nullptr : event;
}

class BarTouchesTest : public testing::Test {
protected:
    BarTouchesTest() {
        blocking = false;
        flagsSeen.clear();
        source->addToMainRunLoop();
    }

    static constexpr double kEsc = 20;

    SwitchedTrust trust;
    ScriptedEventTaps taps{trust};
    ModifierFlags keyboard = 0;
    BarModifiers modifiers{taps, [this] { return keyboard; }};
    BarControls controls;
    BarTouches touches{taps, modifiers, controls};
    std::unique_ptr<EventTap> tap =
        taps.create(maskOf(EventType::Gesture) | maskOf(EventType::FlagsChanged), &filter);
    std::unique_ptr<EventTapSource> source = tap->createRunLoopSource();
};

} // namespace

TEST_F(BarTouchesTest, ATouchThatPassesActs) {
    touches.frame({{1, kTouchBegan, kEsc}});
    EXPECT_TRUE(controls.isLit(0));
    touches.frame({{1, kTouchEnded, kEsc}});
    EXPECT_FALSE(controls.isLit(0));
    EXPECT_EQ(touches.passed(), 1);
    EXPECT_EQ(touches.heldBack(), 0);
}

TEST_F(BarTouchesTest, ATouchThatIsHeldBackDoesNothingAndIsCounted) {
    blocking = true;
    touches.frame({{1, kTouchBegan, kEsc}});
    touches.frame({{1, kTouchMoved, kEsc + 5}});
    EXPECT_FALSE(controls.isLit(0));
    touches.frame({{1, kTouchEnded, kEsc}});
    EXPECT_EQ(touches.passed(), 0);
    EXPECT_EQ(touches.heldBack(), 1);
}

TEST_F(BarTouchesTest, ATouchThatPassesWhileItRestsBeginsThereAndThen) {
    blocking = true;
    touches.frame({{1, kTouchBegan, kEsc}});
    blocking = false;
    touches.frame({{1, kTouchMoved, kEsc + 1}});
    EXPECT_TRUE(controls.isLit(0));
    touches.frame({{1, kTouchEnded, kEsc}});
    EXPECT_EQ(touches.passed(), 1);
    EXPECT_EQ(touches.heldBack(), 0);
}

TEST_F(BarTouchesTest, AFingerThatLeavesInAFrameThatIsHeldBackLeavesItsKey) {
    touches.frame({{1, kTouchBegan, kEsc}});
    blocking = true;
    touches.frame({{1, kTouchEnded, kEsc}, {2, kTouchBegan, 500}});
    EXPECT_FALSE(controls.isLit(0));
    touches.frame({{2, kTouchEnded, 500}});
    EXPECT_EQ(touches.passed(), 1);
    EXPECT_EQ(touches.heldBack(), 1);
}

TEST_F(BarTouchesTest, AnEndWithoutABeginningIsNoTouchThatPassed) {
    touches.frame({{7, kTouchEnded, kEsc}});
    EXPECT_EQ(touches.passed(), 0);
    EXPECT_EQ(touches.heldBack(), 1);
}

TEST_F(BarTouchesTest, TouchesCarryTheModifiersOfKeyboardAndFnButton) {
    keyboard = kFlagShift | kFlagLeftShift;
    modifiers.setFnHeld(true);
    touches.frame({{1, kTouchBegan, kEsc}});
    EXPECT_EQ(flagsSeen, (std::vector<ModifierFlags>{kFlagShift | kFlagLeftShift | kFlagFn,
                                                     kFlagShift | kFlagLeftShift | kFlagFn}));
}

TEST_F(BarTouchesTest, AChangedModifierIsToldOnce) {
    keyboard = kFlagCommand | kFlagRightCommand;
    modifiers.keyboardChanged();
    modifiers.keyboardChanged();
    keyboard = 0;
    modifiers.keyboardChanged();
    EXPECT_EQ(flagsSeen, (std::vector<ModifierFlags>{kFlagCommand | kFlagRightCommand, 0}));
}

} // namespace barquell::test
