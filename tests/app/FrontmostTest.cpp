// The application in front, the bypass list and the screen shield.

#include "app/AppFixture.h"
#include "shortcuts/ShortcutMonitor.h"

namespace barquell::test {
namespace {

using testing::ElementsAre;

const QString kPlayer = QStringLiteral("org.example.player");
const QString kEditor = QStringLiteral("org.example.editor");

class FrontmostTest : public AppFixture {
protected:
    FrontmostTest() { set("BypassApps", QVariantList{kPlayer}); }

    static std::uint32_t flags() { return TouchBarInterceptor::pauseFlags(); }
};

TEST_F(FrontmostTest, ABypassedApplicationInFrontPausesBlockingAndAnotherResumesIt) {
    launchSilently();
    bringToFront(kPlayer);
    EXPECT_EQ(flags(), PauseFlagBypassedApp);
    EXPECT_TRUE(touchPasses());
    bringToFront(kEditor);
    EXPECT_EQ(flags(), 0U);
    EXPECT_FALSE(touchPasses());
}

TEST_F(FrontmostTest, IdentifiersAreComparedExactly) {
    launchSilently();
    for (const char *identifier : {"org.example.Player", "org.example.player2", "player", ""}) {
        bringToFront(QString::fromLatin1(identifier));
        EXPECT_EQ(flags(), 0U) << identifier;
    }
}

TEST_F(FrontmostTest, AnApplicationWithoutAnIdentifierIsNeverBypassed) {
    set("BypassApps", QVariantList{QString(), QStringLiteral("")});
    launchSilently();
    bringToFront(QString());
    EXPECT_EQ(flags(), 0U);
    here.platform.workspace.bringToFront(std::nullopt);
    here.loop.runPending();
    EXPECT_EQ(flags(), 0U);
}

TEST_F(FrontmostTest, ThisApplicationCountsLikeAnyOther) {
    set("BypassApps", QVariantList{ours()});
    launchSilently();
    bringToFront(ours());
    EXPECT_EQ(flags(), PauseFlagBypassedApp);
}

TEST_F(FrontmostTest, TheBypassShortcutTakesABypassedApplicationOutAndResumesBlockingAtOnce) {
    launchSilently();
    bringToFront(kPlayer);
    controller().handleBypassShortcut({});
    EXPECT_EQ(flags(), 0U);
    EXPECT_FALSE(touchPasses());
    EXPECT_EQ(stored("BypassApps").toList(), QVariantList());
    controller().handleBypassShortcut({});
    EXPECT_EQ(flags(), PauseFlagBypassedApp);
    EXPECT_EQ(stored("BypassApps").toList(), QVariantList{kPlayer});
}

TEST_F(FrontmostTest, TheBypassShortcutDoesNothingWithoutAnIdentifier) {
    launchSilently();
    bringToFront(QString());
    controller().handleBypassShortcut({});
    EXPECT_EQ(stored("BypassApps").toList(), QVariantList{kPlayer});
}

TEST_F(FrontmostTest, TheBypassShortcutsKeyReachesTheController) {
    set("BypassShortcut", QVariantList{32, 0x100000}); // Command-U
    set("BypassShortcutEnabled", true);
    launchSilently();
    bringToFront(kPlayer);
    ASSERT_TRUE(here.platform.hotKeys.press(32, kHotKeyCommand));
    here.loop.runPending();
    EXPECT_EQ(flags(), 0U);
}

TEST_F(FrontmostTest, AnEditOfTheListFromOutsideCountsAtOnce) {
    launchSilently();
    bringToFront(kEditor);
    here.platform.settings.editFromOutside(QStringLiteral("BypassApps"), QVariantList{kEditor});
    here.loop.runPending();
    EXPECT_EQ(flags(), PauseFlagBypassedApp);
    here.platform.settings.editFromOutside(QStringLiteral("BypassApps"), QVariant());
    here.loop.runPending();
    EXPECT_EQ(flags(), 0U);
}

TEST_F(FrontmostTest, AnotherListsChangeDoesNotMatter) {
    launchSilently();
    bringToFront(kPlayer);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, false); // to see whether the rule runs
    AppList other(QStringLiteral("OtherApps"));
    other.addBundleIdentifier(kEditor);
    EXPECT_EQ(flags(), 0U);
    AppList::bypassAppList().addBundleIdentifier(kEditor);
    EXPECT_EQ(flags(), PauseFlagBypassedApp);
}

TEST_F(FrontmostTest, TheShieldRaisedOverABypassedApplicationSetsBothFlagsAndLoweredLeavesTheFirst) {
    launchSilently();
    bringToFront(kPlayer);
    post("com.apple.shieldWindowRaised");
    EXPECT_EQ(flags(), PauseFlagBypassedApp | PauseFlagScreenShield);
    EXPECT_TRUE(touchPasses());
    post("com.apple.shieldWindowLowered");
    EXPECT_EQ(flags(), PauseFlagBypassedApp);
    EXPECT_TRUE(touchPasses());
}

TEST_F(FrontmostTest, PauseFlagsFromBothSourcesAtOnceGoInEitherOrder) {
    launchSilently();
    post("com.apple.shieldWindowRaised");
    bringToFront(kPlayer);
    EXPECT_EQ(flags(), PauseFlagBypassedApp | PauseFlagScreenShield);
    bringToFront(kEditor);
    EXPECT_EQ(flags(), PauseFlagScreenShield);
    EXPECT_TRUE(touchPasses());
    post("com.apple.shieldWindowLowered");
    EXPECT_EQ(flags(), 0U);
    EXPECT_FALSE(touchPasses());
}

TEST_F(FrontmostTest, TheStatusMenuShowsTheApplicationInFrontAndItsBypass) {
    bringToFront(kPlayer);
    launchSilently();
    const StatusItemController *item = controller().statusItemController();
    ASSERT_NE(item, nullptr);
    EXPECT_TRUE(item->bypassAppMenuItem()->isChecked());
    EXPECT_TRUE(item->bypassAppMenuItem()->text().contains(kPlayer));
    bringToFront(kEditor);
    EXPECT_FALSE(item->bypassAppMenuItem()->isChecked());
    EXPECT_TRUE(item->bypassAppMenuItem()->text().contains(kEditor));
    post("com.apple.shieldWindowRaised");
    EXPECT_FALSE(item->bypassAppMenuItem()->isChecked()); // the shield is no bypass
}

TEST_F(FrontmostTest, AStatusItemThatComesLaterKnowsTheApplicationInFront) {
    set("ShowStatusItem", false);
    launchSilently();
    bringToFront(kPlayer);
    set("ShowStatusItem", true);
    const QAction *bypass = controller().statusItemController()->bypassAppMenuItem();
    EXPECT_TRUE(bypass->isChecked());
    EXPECT_TRUE(bypass->isVisible());
}

TEST_F(FrontmostTest, HostileListsBypassNothing) {
    const QVariant hostile[] = {
        QStringLiteral("org.example.editor"), true, 7, QVariantMap{{kEditor, true}},
        QVariantList{QVariantList{kEditor}, 12, QVariantMap{{kEditor, kEditor}}, true}};
    launchSilently();
    bringToFront(kEditor);
    for (const QVariant &value : hostile) {
        here.platform.settings.editFromOutside(QStringLiteral("BypassApps"), value);
        here.loop.runPending();
        EXPECT_EQ(flags(), 0U) << value.typeName();
        EXPECT_FALSE(touchPasses()) << value.typeName();
    }
}

} // namespace
} // namespace barquell::test
