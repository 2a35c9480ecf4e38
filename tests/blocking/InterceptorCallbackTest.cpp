#include "InterceptorFixture.h"

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

class InterceptorCallbackTest : public InterceptorFixture {
protected:
    InterceptorCallbackTest() { start(); }

    ModifierFlags flagsAfter(ScriptedEvent event) {
        EXPECT_TRUE(taps.deliver(event));
        return event.flags();
    }
};

TEST_F(InterceptorCallbackTest, ATouchIsSwallowedWhileBlockingIsInForce) {
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorCallbackTest, ATouchThatBeganBeforeBlockingMayFinish) {
    hold(kFlagFn);
    EXPECT_TRUE(touchPasses(kFlagFn, kTouchBegan));
    hold(0);
    EXPECT_FALSE(touchPasses(0, kTouchMoved));
    EXPECT_TRUE(touchPasses(0, kTouchEnded));
    EXPECT_TRUE(touchPasses(0, kTouchCancelled));
}

TEST_F(InterceptorCallbackTest, HoldingFnPassesTouchesAndReleasingItPostsThePauseKeys) {
    hold(kFlagFn);
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_TRUE(touchPasses(kFlagFn));
    hold(0);
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_FALSE(touchPasses());
    EXPECT_THAT(sources, ElementsAre(1, 1));
}

TEST_F(InterceptorCallbackTest, AGestureAloneTellsThatAPauseKeyIsHeld) {
    EXPECT_TRUE(touchPasses(kFlagFn));
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_FALSE(touchPasses(0));
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_THAT(sources, ElementsAre(1, 1));
}

TEST_F(InterceptorCallbackTest, AModifierThatIsNoPauseKeyChangesNothing) {
    hold(kFlagShift | kFlagLeftShift);
    EXPECT_FALSE(touchPasses(kFlagShift | kFlagLeftShift));
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorCallbackTest, WithPauseKeysOffAHeldFnDoesNotPause) {
    set("PauseKeyAllowed", false);
    hold(kFlagFn);
    EXPECT_FALSE(touchPasses(kFlagFn));
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorCallbackTest, SystemDefinedEventsGoOnWithoutThePauseKeys) {
    EXPECT_EQ(flagsAfter(ScriptedEvent(EventType::SystemDefined, kFlagFn | kFlagShift)), kFlagShift);
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorCallbackTest, ASystemDefinedEventPostedByAProcessKeepsItsFlags) {
    ScriptedEvent event(EventType::SystemDefined, kFlagFn);
    event.processId = 1;
    EXPECT_EQ(flagsAfter(event), kFlagFn);
}

TEST_F(InterceptorCallbackTest, TheSideOfAModifierThatIsOffIsStrippedButDoesNotPause) {
    set("PauseKeyCommandType", 1);
    const ModifierFlags held = kFlagCommand | kFlagLeftCommand;
    EXPECT_EQ(flagsAfter(ScriptedEvent(EventType::SystemDefined, held)), kFlagCommand);
    EXPECT_FALSE(touchPasses(held));
}

TEST_F(InterceptorCallbackTest, WithTheRightCommandKeyChosenOnlyThatOnePauses) {
    set("PauseKeyCommand", true);
    set("PauseKeyCommandType", 2);
    EXPECT_TRUE(touchPasses(kFlagCommand | kFlagRightCommand));
    EXPECT_FALSE(touchPasses(kFlagCommand | kFlagLeftCommand));
    EXPECT_FALSE(touchPasses(kFlagCommand));
}

TEST_F(InterceptorCallbackTest, ATapDisabledByTimeoutIsEnabledAgainWhileTrusted) {
    forget();
    taps.timeOut();
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("Received kCGEventTapDisabledByTimeout event. Re-enabling...")));
    EXPECT_THAT(taps.journal, ElementsAre("enable tap"));
    EXPECT_FALSE(touchPasses());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorCallbackTest, ATimeoutMakesEveryListenerOfTheAccessibilityNotificationLookAgain) {
    int heard = 0;
    const auto observation = here.platform.notifications.observe(
        QStringLiteral("com.apple.accessibility.api"), [&](const QString &) { ++heard; });
    taps.timeOut();
    here.loop.runPending();
    EXPECT_EQ(heard, 1);
    EXPECT_THAT(log.lines, testing::Contains(QStringLiteral("Got com.apple.accessibility.api")));
}

TEST_F(InterceptorCallbackTest, ATapDisabledByTimeoutIsDestroyedWhereTrustWasLost) {
    here.platform.trust.trusted = false;
    taps.timeOut();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral(
                               "Received kCGEventTapDisabledByTimeout event. Process is not trusted...")));
    EXPECT_THAT(taps.journal, ElementsAre("release source", "disable tap", "release tap"));
    EXPECT_TRUE(touchPasses());
    // Trust has no say in the effective state.
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
}

TEST_F(InterceptorCallbackTest, ATimeoutWhilePausedDoesNotEnableTheTap) {
    // The system's word can arrive after the pause has disabled the tap.
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    forget();
    ASSERT_NE(taps.installedCallback(), nullptr);
    taps.installedCallback()(EventType::TapDisabledByTimeout, nullptr);
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_TRUE(touchPasses());
}

TEST_F(InterceptorCallbackTest, ANullEventIsNoTouch) {
    EXPECT_EQ(taps.installedCallback()(EventType::Gesture, nullptr), nullptr);
    EXPECT_EQ(taps.installedCallback()(EventType::FlagsChanged, nullptr), nullptr);
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorCallbackTest, AnEventThatNobodyAskedForPasses) {
    constexpr auto kKeyDown = static_cast<EventType>(10);
    ScriptedEvent event(kKeyDown, kFlagFn);
    EXPECT_EQ(taps.installedCallback()(kKeyDown, &event), &event);
    EXPECT_EQ(event.flags(), kFlagFn);
    EXPECT_THAT(sources, IsEmpty());
}

} // namespace barquell::test
