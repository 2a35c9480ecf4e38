#include "InterceptorFixture.h"

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

class InterceptorTapTest : public InterceptorFixture {};

TEST_F(InterceptorTapTest, BeforeTheStartNothingHappens) {
    EXPECT_FALSE(TouchBarInterceptor::enabled());
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 0U);
    EXPECT_TRUE(touchPasses());
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorTapTest, TheStartMakesTheTapInItsOrderAndAnnouncesThePauseKeys) {
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(taps.journal,
                ElementsAre("create tap 0x20005000", "create source", "enable tap", "add source"));
    EXPECT_TRUE(TouchBarInterceptor::enabled());
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_THAT(sources, ElementsAre(1));
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[Fn]")));
}

TEST_F(InterceptorTapTest, WhoHearsOfAChangeReadsTheNewState) {
    start();
    hold(kFlagFn);
    hold(0);
    TouchBarInterceptor::updatePauseFlags(PauseFlagScreenShield, true);
    EXPECT_THAT(sources, ElementsAre(1, 1, 2));
    EXPECT_THAT(states, ElementsAre(false, true, false));
}

TEST_F(InterceptorTapTest, AChangedMaskIsAnnouncedBeforeItIsLogged) {
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(linesBefore, ElementsAre(0));
}

TEST_F(InterceptorTapTest, AStartWithoutAPauseKeyIsAnnouncedByTheTap) {
    set("PauseKeyFn", false);
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(sources, ElementsAre(0));
    EXPECT_THAT(log.lines, IsEmpty()); // the mask is what it was
}

TEST_F(InterceptorTapTest, AStartWithBlockingOffMakesNoTapAndAnnouncesNothing) {
    set("Enabled", false);
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_FALSE(TouchBarInterceptor::enabled());
}

TEST_F(InterceptorTapTest, WithoutTrustTheTapWaitsForIt) {
    here.platform.trust.trusted = false;
    start();
    EXPECT_TRUE(touchPasses());
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_EQ(taps.timesUserWasAsked(), 0);
    here.platform.trust.trusted = true;
    EXPECT_TRUE(TrustedProcessChecker::checkIsTrusted());
    EXPECT_THAT(taps.journal,
                ElementsAre("create tap 0x20005000", "create source", "enable tap", "add source"));
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorTapTest, LostTrustDestroysTheTapAndPostsNothingSinceTheStateIsTheSame) {
    start();
    here.platform.trust.trusted = false;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_THAT(taps.journal, ElementsAre("release source", "disable tap", "release tap"));
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_TRUE(touchPasses());
}

TEST_F(InterceptorTapTest, TrustThatIsToldAgainKeepsTheTap) {
    start();
    TouchBarInterceptor::cls().processTrustedStateDidChange(true);
    EXPECT_THAT(taps.journal, IsEmpty());
}

TEST_F(InterceptorTapTest, TrustThatIsToldWhileBlockingIsOffMakesNoTap) {
    set("Enabled", false);
    start();
    TouchBarInterceptor::cls().processTrustedStateDidChange(true);
    EXPECT_THAT(taps.journal, IsEmpty());
}

TEST_F(InterceptorTapTest, ARefusedTapIsSaidAndTriedAgainWithTheNextSetting) {
    taps.refuseTaps = true;
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[Fn]"), QStringLiteral("Failed to create event tap")));
    EXPECT_TRUE(touchPasses());
    taps.refuseTaps = false;
    set("Enabled", false);
    set("Enabled", true);
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorTapTest, ARefusedSourceIsSaidAndTheTapReleased) {
    taps.refuseSources = true;
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[Fn]"),
                                       QStringLiteral("Failed to create event tap run loop source")));
    EXPECT_THAT(taps.journal, ElementsAre("create tap 0x20005000", "release tap"));
    EXPECT_TRUE(touchPasses());
    taps.refuseSources = false;
    set("ClearPauseKeys", false);
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorTapTest, APauseFlagDisablesTheTapAndItsEndEnablesIt) {
    start();
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 1U);
    EXPECT_TRUE(touchPasses());
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, false);
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 0U);
    EXPECT_FALSE(touchPasses());
    EXPECT_THAT(taps.journal, ElementsAre("disable tap", "enable tap"));
    EXPECT_THAT(sources, ElementsAre(2, 2));
}

TEST_F(InterceptorTapTest, BothPauseFlagsMustEndBeforeBlockingResumes) {
    start();
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    TouchBarInterceptor::updatePauseFlags(PauseFlagScreenShield, true);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, false);
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), PauseFlagScreenShield);
    EXPECT_TRUE(touchPasses());
    TouchBarInterceptor::updatePauseFlags(PauseFlagScreenShield, false);
    EXPECT_FALSE(touchPasses());
    EXPECT_THAT(sources, ElementsAre(2, 2));
}

TEST_F(InterceptorTapTest, SettingFlagsOfWhichOneIsSetAlreadyChangesNothing) {
    start();
    TouchBarInterceptor::updatePauseFlags(1, true);
    forget();
    TouchBarInterceptor::updatePauseFlags(3, true);
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 1U);
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorTapTest, ClearingFlagsThatAreNotSetChangesNothing) {
    start();
    TouchBarInterceptor::updatePauseFlags(2, false);
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorTapTest, AFlagThatIsClearedTogetherWithAnUnsetOneIsCleared) {
    start();
    TouchBarInterceptor::updatePauseFlags(1, true);
    TouchBarInterceptor::updatePauseFlags(3, false);
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 0U);
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorTapTest, ATapMadeWhilePausedIsInstalledDisabled) {
    TouchBarInterceptor::updatePauseFlags(PauseFlagScreenShield, true);
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(taps.journal,
                ElementsAre("create tap 0x20005000", "create source", "disable tap", "add source"));
    EXPECT_TRUE(touchPasses());
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorTapTest, AskingForAuthorizationMakesTheSystemAskAndLeavesNoTap) {
    here.platform.trust.trusted = false;
    TouchBarInterceptor::requestAuthorization();
    EXPECT_EQ(taps.timesUserWasAsked(), 1);
    here.platform.trust.trusted = true;
    TouchBarInterceptor::requestAuthorization();
    EXPECT_THAT(taps.journal, ElementsAre("create tap 0xFFFFFFFFFFFFFFFF", "release tap"));
    EXPECT_EQ(taps.timesUserWasAsked(), 1);
}

} // namespace barquell::test
