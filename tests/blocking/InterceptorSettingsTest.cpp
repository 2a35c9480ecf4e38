#include "InterceptorFixture.h"

#include "observing/KeyValueObserver.h"

#include <QDateTime>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

class InterceptorSettingsTest : public InterceptorFixture {};

TEST_F(InterceptorSettingsTest, SwitchingBlockingOffWhilePausedDestroysTheTapAndPostsNothing) {
    start();
    TouchBarInterceptor::updatePauseFlags(1, true);
    forget();
    set("Enabled", false);
    EXPECT_THAT(taps.journal, ElementsAre("release source", "disable tap", "release tap"));
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorSettingsTest, SwitchingBlockingOffPostsTheTap) {
    start();
    set("Enabled", false);
    EXPECT_THAT(sources, ElementsAre(0));
    EXPECT_FALSE(TouchBarInterceptor::enabled());
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_TRUE(touchPasses());
}

TEST_F(InterceptorSettingsTest, SwitchingBlockingOffWithAPauseKeyHeldPostsNothing) {
    start();
    hold(kFlagFn);
    forget();
    set("Enabled", false);
    EXPECT_THAT(sources, IsEmpty());
}

TEST_F(InterceptorSettingsTest, SwitchingBlockingOnMakesTheTapAndPostsIt) {
    set("Enabled", false);
    start();
    set("Enabled", true);
    EXPECT_THAT(taps.journal,
                ElementsAre("create tap 0x20005000", "create source", "enable tap", "add source"));
    EXPECT_THAT(sources, ElementsAre(0));
}

TEST_F(InterceptorSettingsTest, WhileBlockingIsOffTrustIsNotFollowed) {
    set("Enabled", false);
    start();
    here.platform.trust.trusted = false;
    TrustedProcessChecker::checkIsTrusted();
    here.platform.trust.trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_THAT(taps.journal, IsEmpty());
}

TEST_F(InterceptorSettingsTest, SwitchingBlockingOffEndsTheWatchOverTrust) {
    start();
    set("Enabled", false);
    here.platform.trust.trusted = false;
    here.loop.advanceBy(std::chrono::hours(1)); // no poll any more
    EXPECT_TRUE(TrustedProcessChecker::isTrusted());
    TrustedProcessChecker::checkIsTrusted();
    set("Enabled", true);
    here.platform.trust.trusted = true;
    here.loop.advanceBy(std::chrono::seconds(30));
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorSettingsTest, AnEqualValueOfASettingChangesNothing) {
    start();
    for (const char *key : {"Enabled", "PauseKeyAllowed", "PauseKeyFn", "ClearPauseKeys"}) {
        set(key, true);
    }
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(InterceptorSettingsTest, ARemovedSettingFallsBackToItsDefault) {
    set("Enabled", false);
    start();
    UserDefaults::standard().removeObjectForKey(QStringLiteral("Enabled"));
    EXPECT_TRUE(TouchBarInterceptor::enabled());
    EXPECT_FALSE(touchPasses());
}

TEST_F(InterceptorSettingsTest, ClearingPauseKeysRebuildsTheTapWithItsMask) {
    start();
    set("ClearPauseKeys", false);
    EXPECT_THAT(taps.journal,
                ElementsAre("release source", "disable tap", "release tap", "create tap 0x20001000",
                            "create source", "enable tap", "add source"));
    EXPECT_THAT(sources, IsEmpty());
    ScriptedEvent event(EventType::SystemDefined, kFlagFn);
    EXPECT_TRUE(taps.deliver(event));
    EXPECT_EQ(event.flags(), kFlagFn);
}

TEST_F(InterceptorSettingsTest, ClearingPauseKeysWhileBlockingIsOffOnlyStoresTheValueForTheNextTap) {
    set("Enabled", false);
    start();
    set("ClearPauseKeys", false);
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
    set("Enabled", true);
    EXPECT_THAT(taps.journal,
                ElementsAre("create tap 0x20001000", "create source", "enable tap", "add source"));
}

TEST_F(InterceptorSettingsTest, ClearingPauseKeysWithoutTrustMakesNoTap) {
    here.platform.trust.trusted = false;
    start();
    set("ClearPauseKeys", false);
    EXPECT_THAT(taps.journal, IsEmpty());
    EXPECT_EQ(taps.timesUserWasAsked(), 0);
}

TEST_F(InterceptorSettingsTest, ANewPauseKeyTakesEffectAtOnceAndIsLogged) {
    start();
    hold(kFlagShift | kFlagLeftShift);
    set("PauseKeyShift", true);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[Fn|Shift]")));
    EXPECT_THAT(sources, ElementsAre(1));
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    set("PauseKeyShiftType", 2);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[Fn|Shift]"), QStringLiteral("[Fn|ShiftR]")));
    EXPECT_THAT(sources, ElementsAre(1, 1));
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
}

TEST_F(InterceptorSettingsTest, EveryPauseKeyAndTypeReachesTheMask) {
    set("PauseKeyFn", false);
    start();
    set("PauseKeyCommand", true);
    set("PauseKeyOption", true);
    set("PauseKeyControl", true);
    set("PauseKeyShift", true);
    set("PauseKeyCommandType", 1);
    set("PauseKeyOptionType", 2);
    set("PauseKeyControlType", 1);
    set("PauseKeyShiftType", 2);
    EXPECT_EQ(log.lines.last(), QStringLiteral("[CmdL|CtrlL|AltR|ShiftR]"));
    set("PauseKeyCommandType", 2);
    set("PauseKeyOptionType", 1);
    set("PauseKeyControlType", 2);
    set("PauseKeyShiftType", 1);
    EXPECT_EQ(log.lines.last(), QStringLiteral("[CmdR|CtrlR|AltL|ShiftL]"));
}

TEST_F(InterceptorSettingsTest, SettingsAreReadAtTheStart) {
    set("PauseKeyFn", false);
    set("PauseKeyControl", true);
    set("PauseKeyControlType", 2);
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[CtrlR]")));
}

TEST_F(InterceptorSettingsTest, NoPauseKeyAtAllIsLoggedAsEmpty) {
    start();
    set("PauseKeyFn", false);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[]")));
}

TEST_F(InterceptorSettingsTest, ATypeOfAModifierThatIsOffIsNotLogged) {
    start();
    set("PauseKeyCommandType", 1);
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(InterceptorSettingsTest, SwitchingPauseKeysOffAsksForTheKeysThatAreHeldNow) {
    start();
    hold(kFlagFn);
    forget();
    set("PauseKeyAllowed", false);
    EXPECT_THAT(sources, ElementsAre(1));
    EXPECT_TRUE(TouchBarInterceptor::effectivelyEnabled());
    // Fn was released while nobody listened for it.
    here.platform.modifiers.flags = 0;
    set("PauseKeyAllowed", true);
    EXPECT_THAT(sources, ElementsAre(1));
    here.platform.modifiers.flags = kFlagFn;
    set("PauseKeyAllowed", false);
    set("PauseKeyAllowed", true);
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    EXPECT_THAT(sources, ElementsAre(1, 1));
}

TEST_F(InterceptorSettingsTest, SettingsOfUnexpectedTypesReadAsFalseAndEitherSide) {
    set("PauseKeyFn", QVariantList{true});
    set("PauseKeyCommand", QStringLiteral("YES"));
    set("PauseKeyCommandType", QVariantMap{});
    set("PauseKeyShift", QByteArray("1"));
    set("ClearPauseKeys", QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
    TouchBarInterceptor::subscribeToUserDefaults();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("[Cmd]")));
    EXPECT_EQ(taps.journal.front(), "create tap 0x20001000");
}

TEST_F(InterceptorSettingsTest, ASilentWriteReachesTheInterceptor) {
    start();
    class Writer : public KeyValueObserver {};
    Writer writer;
    writer.setUserDefaultsValue(false, QStringLiteral("Enabled"));
    EXPECT_FALSE(TouchBarInterceptor::enabled());
}

} // namespace barquell::test
