// The launch sequence, and what shows first.

#include "app/AppFixture.h"
#include "process/AppHelpers.h"
#include "shortcuts/ShortcutMonitor.h"

namespace barquell::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class LaunchTest : public AppFixture {};

TEST_F(LaunchTest, ATrustedStartShowsThePreferences) {
    launch();
    EXPECT_TRUE(preferencesAreShown());
    EXPECT_FALSE(authorizationIsShown());
}

TEST_F(LaunchTest, ASilentStartShowsNothingWhileTrusted) {
    launchSilently();
    EXPECT_FALSE(preferencesAreShown());
    EXPECT_FALSE(authorizationIsShown());
}

TEST_F(LaunchTest, WithoutTrustTheAuthorizationWindowShowsEvenOnASilentStart) {
    here.platform.trust.trusted = false;
    launchSilently();
    EXPECT_TRUE(authorizationIsShown());
    EXPECT_FALSE(preferencesAreShown());
}

TEST_F(LaunchTest, ALoginItemLaunchShowsNothing) {
    qputenv("FromLoginItem", "1");
    launch();
    EXPECT_FALSE(preferencesAreShown());
    EXPECT_FALSE(authorizationIsShown());
}

TEST_F(LaunchTest, ALoginItemLaunchShowsNothingWithoutTrustEither) {
    qputenv("FromLoginItem", "1");
    here.platform.trust.trusted = false;
    launch();
    EXPECT_FALSE(preferencesAreShown());
    EXPECT_FALSE(authorizationIsShown());
}

TEST_F(LaunchTest, ACopyThatIsToEndStartsNothing) {
    qputenv("FromLoginItem", "1");
    here.platform.workspace.copies.insert(ours(), 2);
    launch();
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("terminate"));
    EXPECT_EQ(ShortcutMonitor::existingMonitorWithName(QStringLiteral("ToggleShortcut")), nullptr);
    EXPECT_EQ(here.platform.statusBar.item(), nullptr);
    EXPECT_THAT(here.platform.taps.journal, IsEmpty());
    post("com.vexolith.barquell.toggle");
    EXPECT_FALSE(stored("Active").isValid());
}

TEST_F(LaunchTest, TheStatusItemStandsBeforeBlockingStartsFromTheRunLoop) {
    prepareSettings();
    set("SilentStart", true);
    application.load();
    controller().applicationDidFinishLaunching();
    EXPECT_NE(here.platform.statusBar.item(), nullptr);
    EXPECT_THAT(here.platform.taps.journal, Not(Contains("enable tap")));
    here.loop.runPending();
    EXPECT_THAT(here.platform.taps.journal, Contains("enable tap"));
    EXPECT_FALSE(touchPasses());
}

TEST_F(LaunchTest, AllThreeShortcutsAreTaken) {
    launchSilently();
    const std::pair<const char *, const char *> actions[] = {{"ToggleShortcut", "handleToggleShortcut:"},
                                                             {"BypassShortcut", "handleBypassShortcut:"},
                                                             {"RevealShortcut", "handleRevealShortcut:"}};
    for (const auto &[name, action] : actions) {
        const ShortcutMonitor *monitor = ShortcutMonitor::existingMonitorWithName(QString::fromLatin1(name));
        ASSERT_NE(monitor, nullptr) << name;
        EXPECT_EQ(monitor->target(), &controller()) << name;
        EXPECT_EQ(monitor->action().name(), QLatin1String(action)) << name;
        EXPECT_TRUE(monitor->action().resolvedOn(controller()).isValid()) << name;
    }
}

TEST_F(LaunchTest, EverybodyListensWhenTheLaunchIsAnnounced) {
    prepareSettings();
    set("SilentStart", true);
    application.load();
    QObject::connect(&controller(), &AppController::launched, &controller(), [this] {
        here.platform.notifications.post(QStringLiteral("com.apple.shieldWindowRaised"));
    });
    controller().applicationDidFinishLaunching();
    here.loop.runPending();
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), PauseFlagScreenShield);
}

TEST_F(LaunchTest, TheApplicationInFrontAtLaunchCounts) {
    set("BypassApps", QVariantList{QStringLiteral("org.example.player")});
    here.platform.workspace.frontmost = running(QStringLiteral("org.example.player"));
    launchSilently();
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), PauseFlagBypassedApp);
    EXPECT_TRUE(touchPasses());
}

TEST_F(LaunchTest, ThatNothingTellsWhatIsInFrontIsOneLine) {
    here.platform.workspace.knowsFrontmost = false;
    launchSilently();
    EXPECT_EQ(log.lines,
              QStringList({QStringLiteral(
                               "Nothing tells which application is in front; the bypass list has no effect"),
                           QStringLiteral("[Fn]")}));
}

TEST_F(LaunchTest, AnOrdinaryLaunchSaysItsPauseKeysAlone) {
    launchSilently();
    EXPECT_EQ(log.lines, QStringList{QStringLiteral("[Fn]")});
}

TEST_F(LaunchTest, WithoutAStatusItemThereIsNone) {
    set("ShowStatusItem", false);
    launchSilently();
    EXPECT_EQ(here.platform.statusBar.item(), nullptr);
    EXPECT_EQ(controller().statusItemController(), nullptr);
    set("ShowStatusItem", true);
    EXPECT_NE(here.platform.statusBar.item(), nullptr);
    set("ShowStatusItem", false);
    EXPECT_EQ(here.platform.statusBar.item(), nullptr);
}

TEST_F(LaunchTest, TheStatusItemThatTheUserRemovedIsDroppedAndTheProgramGoesOn) {
    launchSilently();
    here.platform.lifecycle.journal.clear();
    here.platform.statusBar.item()->removeByUser();
    here.loop.runPending();
    EXPECT_EQ(stored("ShowStatusItem"), QVariant(false));
    EXPECT_EQ(controller().statusItemController(), nullptr);
    EXPECT_EQ(here.platform.statusBar.item(), nullptr);
    EXPECT_THAT(here.platform.lifecycle.journal, Not(Contains("terminate")));
    EXPECT_FALSE(touchPasses());
}

TEST_F(LaunchTest, AStatusItemThatStandsIsKept) {
    launchSilently();
    const auto *item = here.platform.statusBar.item();
    set("ShowStatusItem", true);
    EXPECT_EQ(here.platform.statusBar.item(), item);
}

TEST_F(LaunchTest, TheHudComesAndGoesWithItsSetting) {
    launchSilently();
    EXPECT_EQ(controller().touchBarHUDController(), nullptr);
    set("ShowHUD", true);
    EXPECT_NE(controller().touchBarHUDController(), nullptr);
    set("ShowHUD", false);
    EXPECT_EQ(controller().touchBarHUDController(), nullptr);
}

TEST_F(LaunchTest, TheHudClosesBeforeItIsDropped) {
    launchSilently();
    set("ShowHUD", true);
    here.platform.overlayPanels.journal.clear();
    set("ShowHUD", false); // closes it, and it closes itself at its end
    const std::vector<std::string> &journal = here.platform.overlayPanels.journal;
    ASSERT_GE(journal.size(), 3U);
    EXPECT_THAT(std::vector<std::string>(journal.end() - 3, journal.end()),
                ElementsAre("close", "close", "destroy"));
}

TEST_F(LaunchTest, TheStatusItemGoesBeforeTheEnd) {
    launchSilently();
    application.terminate({});
    EXPECT_EQ(here.platform.statusBar.item(), nullptr);
    EXPECT_THAT(here.platform.lifecycle.journal, Contains("terminate"));
}

TEST_F(LaunchTest, ReopeningShowsThePreferencesWhileTrusted) {
    launchSilently();
    EXPECT_TRUE(here.platform.lifecycle.delegate()->applicationShouldHandleReopen(false));
    here.loop.runPending();
    EXPECT_TRUE(preferencesAreShown());
}

TEST_F(LaunchTest, ReopeningShowsTheAuthorizationWindowWithoutTrust) {
    qputenv("FromLoginItem", "1");
    here.platform.trust.trusted = false;
    launch();
    EXPECT_TRUE(here.platform.lifecycle.delegate()->applicationShouldHandleReopen(true));
    here.loop.runPending();
    EXPECT_TRUE(authorizationIsShown());
    EXPECT_FALSE(preferencesAreShown());
}

TEST_F(LaunchTest, AControllerThatHasGoneHearsNothing) {
    set("SilentStart", true);
    set("ToggleShortcut", QVariantList{32, 0x100000});
    set("ToggleShortcutEnabled", true);
    prepareSettings();
    {
        AppController shortLived;
        shortLived.applicationDidFinishLaunching();
        here.loop.runPending();
    }
    EXPECT_EQ(here.platform.statusBar.item(), nullptr);
    set("ShowHUD", true);
    set("BypassApps", QVariantList{ours()});
    bringToFront(ours());
    AppList::bypassAppList().addBundleIdentifier(QStringLiteral("org.example.editor"));
    post("com.apple.shieldWindowRaised");
    post("com.vexolith.barquell.toggle");
    here.platform.hotKeys.press(32, kHotKeyCommand);
    here.platform.trust.trusted = false;
    post("com.apple.accessibility.api");
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 0U);
    EXPECT_FALSE(stored("Active").isValid());
}

TEST_F(LaunchTest, AnotherCopysRequestToShowIsAReopen) {
    launchSilently();
    post("com.vexolith.barquell.show");
    EXPECT_TRUE(preferencesAreShown());
}

} // namespace
} // namespace barquell::test
