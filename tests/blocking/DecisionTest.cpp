#include "blocking/Decision.h"
#include "platform/simulated/ScriptedEvent.h"

#include <gtest/gtest.h>

namespace barquell::test {

using blocking::decide;
using blocking::Decision;
using blocking::State;

namespace {

const Decision kPass{};
const Decision kSwallow{Decision::Verdict::Swallow};

State blockingState() {
    State state;
    state.enabled = true;
    state.pauseKeyAllowed = true;
    state.pauseKeySettings = kFlagFn;
    state.pauseKeyMask = kFlagFn;
    return state;
}

ScriptedEvent gesture(TouchPhases phase, ModifierFlags flags = 0) {
    ScriptedEvent event(EventType::Gesture, flags);
    event.touch(phase);
    return event;
}

Decision decisionOn(const ScriptedEvent &event, const State &state = blockingState()) {
    return decide(state, event.type, event);
}

} // namespace

TEST(DecisionTest, AFingerThatBeginsMovesOrRestsIsSwallowed) {
    EXPECT_EQ(decisionOn(gesture(kTouchBegan)), kSwallow);
    EXPECT_EQ(decisionOn(gesture(kTouchMoved)), kSwallow);
    EXPECT_EQ(decisionOn(gesture(kTouchStationary)), kSwallow);
}

TEST(DecisionTest, TouchesThatAllEndedOrWereCancelledPass) {
    ScriptedEvent event = gesture(kTouchEnded);
    EXPECT_EQ(decisionOn(event), kPass);
    event.touch(kTouchCancelled);
    EXPECT_EQ(decisionOn(event), kPass);
}

TEST(DecisionTest, OneFingerStillOnTheBarSwallowsTheEndOfAnother) {
    ScriptedEvent event = gesture(kTouchEnded);
    event.touch(kTouchStationary);
    EXPECT_EQ(decisionOn(event), kSwallow);
}

TEST(DecisionTest, AGestureWithoutTouchesPasses) {
    EXPECT_EQ(decisionOn(ScriptedEvent(EventType::Gesture)), kPass);
}

TEST(DecisionTest, AGestureOfAnotherKindPasses) {
    constexpr int kSwipe = 31; // NSEventTypeSwipe
    ScriptedEvent event = gesture(kTouchBegan);
    event.kind = kSwipe;
    EXPECT_EQ(decisionOn(event), kPass);
}

TEST(DecisionTest, AHeldPauseKeyLetsTouchesThrough) {
    EXPECT_EQ(decisionOn(gesture(kTouchBegan, kFlagFn)), kPass);
    EXPECT_EQ(decisionOn(gesture(kTouchBegan, kFlagCommand)), kSwallow);
}

TEST(DecisionTest, AnyOneOfThePauseKeysSuffices) {
    State state = blockingState();
    state.pauseKeyMask = kFlagFn | kFlagShift;
    EXPECT_EQ(decisionOn(gesture(kTouchBegan, kFlagShift), state), kPass);
}

TEST(DecisionTest, PauseKeysCountOnlyWhereTheyAreAllowed) {
    State state = blockingState();
    state.pauseKeyAllowed = false;
    EXPECT_EQ(decisionOn(gesture(kTouchBegan, kFlagFn), state), kSwallow);
}

TEST(DecisionTest, AGestureIsNotAskedForItsTouchesWhileAPauseKeyIsHeld) {
    class Unasked final : public Event {
    public:
        ModifierFlags flags() const override { return kFlagFn; }
        void setFlags(ModifierFlags /*flags*/) override {}
        std::int64_t sourceProcessId() const override { return 0; }
        int gestureKind() const override {
            ADD_FAILURE() << "the platform's event was made for nothing";
            return 0;
        }
        int touchCount(TouchPhases /*phases*/) const override { return 0; }
    };
    EXPECT_EQ(decide(blockingState(), EventType::Gesture, Unasked()), kPass);
}

TEST(DecisionTest, SystemDefinedEventsLoseThePauseKeys) {
    const ScriptedEvent event(EventType::SystemDefined, kFlagFn | kFlagShift);
    EXPECT_EQ(decisionOn(event), (Decision{Decision::Verdict::PassWithFlags, kFlagShift}));
}

TEST(DecisionTest, SystemDefinedEventsWithoutPauseKeysPassAsTheyAre) {
    EXPECT_EQ(decisionOn(ScriptedEvent(EventType::SystemDefined, kFlagShift)), kPass);
}

TEST(DecisionTest, SystemDefinedEventsOfAProcessKeepTheirFlags) {
    ScriptedEvent event(EventType::SystemDefined, kFlagFn);
    event.processId = 4711;
    EXPECT_EQ(decisionOn(event), kPass);
}

TEST(DecisionTest, NothingIsStrippedWhereStrippingOrPauseKeysAreOff) {
    const ScriptedEvent event(EventType::SystemDefined, kFlagFn);
    State state = blockingState();
    state.clearPauseKeys = false;
    EXPECT_EQ(decisionOn(event, state), kPass);
    state = blockingState();
    state.pauseKeyAllowed = false;
    EXPECT_EQ(decisionOn(event, state), kPass);
}

TEST(DecisionTest, StrippingGoesByTheSettingsWordAndNotByTheMask) {
    State state = blockingState();
    state.pauseKeySettings = kFlagFn | kFlagLeftCommand; // Command is off, its side remembered
    state.pauseKeyMask = kFlagFn;
    const ScriptedEvent event(EventType::SystemDefined, kFlagCommand | kFlagLeftCommand);
    EXPECT_EQ(decisionOn(event, state), (Decision{Decision::Verdict::PassWithFlags, kFlagCommand}));
}

TEST(DecisionTest, EveryOtherEventPasses) {
    constexpr auto kKeyDown = static_cast<EventType>(10);
    EXPECT_EQ(decisionOn(ScriptedEvent(EventType::FlagsChanged, kFlagFn)), kPass);
    EXPECT_EQ(decisionOn(ScriptedEvent(kKeyDown, kFlagFn)), kPass);
}

TEST(DecisionTest, ModifierFlagsAreRecordedFromModifierKeysAndWherePauseKeysCountFromGestures) {
    State state = blockingState();
    EXPECT_TRUE(recordsModifierFlags(state, EventType::FlagsChanged));
    EXPECT_TRUE(recordsModifierFlags(state, EventType::Gesture));
    EXPECT_FALSE(recordsModifierFlags(state, EventType::SystemDefined));
    state.pauseKeyAllowed = false;
    EXPECT_TRUE(recordsModifierFlags(state, EventType::FlagsChanged));
    EXPECT_FALSE(recordsModifierFlags(state, EventType::Gesture));
}

TEST(DecisionTest, BlockingIsEffectiveWhileItIsOnNotPausedAndNoPauseKeyIsHeld) {
    EXPECT_TRUE(isEffective(blockingState(), 0));
    EXPECT_TRUE(isEffective(blockingState(), kFlagShift));
    EXPECT_FALSE(isEffective(blockingState(), kFlagFn));
    State off = blockingState();
    off.enabled = false;
    EXPECT_FALSE(isEffective(off, 0));
    State paused = blockingState();
    paused.pauseFlags = 2;
    EXPECT_FALSE(isEffective(paused, 0));
    State unpausable = blockingState();
    unpausable.pauseKeyAllowed = false;
    EXPECT_TRUE(isEffective(unpausable, kFlagFn));
}

TEST(DecisionTest, TheTapSeesSystemDefinedEventsOnlyWhereTheyAreStripped) {
    EXPECT_EQ(blocking::eventMask(true), 0x20005000U);
    EXPECT_EQ(blocking::eventMask(false), 0x20001000U);
}

} // namespace barquell::test
