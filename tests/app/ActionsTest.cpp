// What menus, shortcuts and other programs ask of the application.

#include "app/AppFixture.h"
#include "menubar/LikeTheAppTracker.h"
#include "process/AppHelpers.h"

#include <QDateTime>
#include <QMessageBox>

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ActionsTest : public AppFixture {
protected:
    QAction *menuItem(const char *name) {
        const QList<QAction *> items = application.mainMenu()->actions();
        const auto item = std::find_if(items.begin(), items.end(), [&](const QAction *each) {
            return each->objectName() == QLatin1String(name);
        });
        return item == items.end() ? nullptr : *item;
    }

    QList<QUrl> openedBy(const char *name) {
        here.platform.workspace.openedUrls.clear();
        menuItem(name)->trigger();
        return here.platform.workspace.openedUrls;
    }
};

TEST_F(ActionsTest, TheToggleNotificationFlipsActiveAndBlockingDoesNotChange) {
    launchSilently();
    post("com.vexolith.barquell.toggle");
    EXPECT_EQ(stored("Active"), QVariant(true));
    EXPECT_FALSE(touchPasses());
    post("com.vexolith.barquell.toggle");
    EXPECT_EQ(stored("Active"), QVariant(false));
    EXPECT_TRUE(TouchBarInterceptor::enabled());
    EXPECT_FALSE(touchPasses());
    EXPECT_FALSE(stored("Enabled").isValid());
}

TEST_F(ActionsTest, TenThousandTogglesInABurstEndWhereTheyBegan) {
    launchSilently();
    for (int i = 0; i < 10000; ++i) {
        here.platform.notifications.post(QStringLiteral("com.vexolith.barquell.toggle"));
    }
    here.loop.runPending();
    EXPECT_EQ(stored("Active"), QVariant(false));
    EXPECT_FALSE(touchPasses());
}

TEST_F(ActionsTest, NamesThatAreNearlyOursDoNothing) {
    launchSilently();
    for (const char *name :
         {"com.vexolith.barquell", "com.vexolith.barquell.", "com.vexolith.barquell.Toggle",
          "com.vexolith.barquell.toggle2", "com.apple.shieldwindowraised"}) {
        post(name);
    }
    EXPECT_FALSE(stored("Active").isValid());
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), 0U);
}

TEST_F(ActionsTest, TheToggleShortcutFlipsActiveAlone) {
    set("ToggleShortcut", QVariantList{32, 0x100000});
    set("ToggleShortcutEnabled", true);
    launchSilently();
    ASSERT_TRUE(here.platform.hotKeys.press(32, kHotKeyCommand));
    here.loop.runPending();
    EXPECT_EQ(stored("Active"), QVariant(true));
    EXPECT_FALSE(touchPasses());
}

TEST_F(ActionsTest, TheRevealShortcutOpensThePreferencesAndClosesThemWhileTheyAreInFront) {
    launchSilently();
    controller().handleRevealShortcut({});
    here.loop.runPending();
    EXPECT_TRUE(preferencesAreShown());
    bringToFront(ours());
    controller().handleRevealShortcut({});
    here.loop.runPending();
    EXPECT_FALSE(preferencesAreShown());
}

TEST_F(ActionsTest, TheRevealShortcutWithAnotherApplicationInFrontAlwaysOpensThePreferences) {
    launchSilently();
    controller().handleRevealShortcut({});
    bringToFront(QStringLiteral("org.example.editor"));
    for (int i = 0; i < 2; ++i) {
        controller().handleRevealShortcut({});
        here.loop.runPending();
        EXPECT_TRUE(preferencesAreShown());
    }
}

TEST_F(ActionsTest, TheRevealShortcutWithoutPreferencesOpensThemEvenInFront) {
    launchSilently();
    bringToFront(ours());
    controller().handleRevealShortcut({});
    here.loop.runPending();
    EXPECT_TRUE(preferencesAreShown());
}

TEST_F(ActionsTest, TheAuthorizationItemIsHiddenWhileTrustedAndNoItemIsDisabled) {
    launchSilently();
    QMenu &menu = *application.mainMenu();
    Q_EMIT menu.aboutToShow();
    EXPECT_FALSE(menuItem("authorizationMenuItem")->isVisible());
    here.platform.trust.trusted = false;
    Q_EMIT menu.aboutToShow();
    EXPECT_TRUE(menuItem("authorizationMenuItem")->isVisible());
    for (const QAction *item : menu.actions()) {
        EXPECT_EQ(item->isEnabled(), item->isVisible()) << item->text().toStdString();
    }
}

TEST_F(ActionsTest, TheLikeTheAppItemIsHiddenUntilItsDate) {
    launchSilently();
    Q_EMIT application.mainMenu()->aboutToShow();
    EXPECT_FALSE(menuItem("likeTheAppMenuItem")->isVisible());
    LikeTheAppTracker::displayTimerDidFire();
    Q_EMIT application.mainMenu()->aboutToShow();
    EXPECT_TRUE(menuItem("likeTheAppMenuItem")->isVisible());
}

TEST_F(ActionsTest, WhatIsNoMenuItemIsValidAndLeftAlone) {
    launchSilently();
    QObject other;
    other.setProperty("action", QStringLiteral("delegate.showAuthorizationWindow:"));
    EXPECT_TRUE(controller().validateMenuItem(&other));
    EXPECT_TRUE(controller().validateMenuItem(nullptr));
}

TEST_F(ActionsTest, TheMainMenuCarriesEveryForwardingAction) {
    launchSilently();
    QStringList actions;
    for (const QAction *item : application.mainMenu()->actions()) {
        actions.append(item->property("action").toString());
    }
    actions.removeAll(QString());
    EXPECT_THAT(actions,
                testing::UnorderedElementsAre(
                    QStringLiteral("delegate.showPreferencesWindow:"),
                    QStringLiteral("delegate.showAuthorizationWindow:"),
                    QStringLiteral("delegate.openAccessibilityPrivacyPreferences:"),
                    QStringLiteral("delegate.toggleFrontmostAppIgnore:"),
                    QStringLiteral("delegate.likeTheApp:"), QStringLiteral("delegate.showInAppStore:"),
                    QStringLiteral("delegate.rateInAppStore:"),
                    QStringLiteral("delegate.becomeBackgroundProcess:"), QStringLiteral("owner.terminate:")));
}

TEST_F(ActionsTest, TheMenuOpensTheWindows) {
    launchSilently();
    menuItem("preferencesMenuItem")->trigger();
    menuItem("authorizationMenuItem")->trigger();
    here.loop.runPending();
    EXPECT_TRUE(preferencesAreShown());
    EXPECT_TRUE(authorizationIsShown());
}

TEST_F(ActionsTest, TheMenuOpensTheAddresses) {
    launchSilently();
    const QList<QUrl> store = openedBy("showInAppStoreMenuItem");
    ASSERT_EQ(store.size(), 1);
    const QList<QUrl> review = openedBy("rateInAppStoreMenuItem");
    ASSERT_EQ(review.size(), 1);
    EXPECT_EQ(review.first().toString(), store.first().toString() + QStringLiteral("?action=write-review"));
    const QList<QUrl> privacy = openedBy("accessibilityMenuItem");
    ASSERT_EQ(privacy.size(), 1);
    EXPECT_TRUE(privacy.first().toString().endsWith(QLatin1String("Privacy_Accessibility")));
}

TEST_F(ActionsTest, TheMenuBypassesTheFrontmostApplication) {
    launchSilently();
    bringToFront(QStringLiteral("org.example.editor"));
    menuItem("bypassMenuItem")->trigger();
    EXPECT_EQ(TouchBarInterceptor::pauseFlags(), PauseFlagBypassedApp);
}

TEST_F(ActionsTest, TheMenuSendsTheProgramToTheBackground) {
    launch();
    ASSERT_TRUE(preferencesAreShown());
    EXPECT_FALSE(AppHelpers::isBackground());
    menuItem("backgroundModeMenuItem")->trigger();
    EXPECT_TRUE(AppHelpers::isBackground());
    here.loop.runPending();
    EXPECT_FALSE(preferencesAreShown());
}

TEST_F(ActionsTest, TheMenuAsksWhetherTheUserLikesTheProgram) {
    launchSilently();
    menuItem("likeTheAppMenuItem")->trigger();
    EXPECT_NE(qobject_cast<QMessageBox *>(QApplication::activeModalWidget()), nullptr);
}

TEST_F(ActionsTest, TheMenuEndsTheProgram) {
    launchSilently();
    here.platform.lifecycle.journal.clear();
    menuItem("quitMenuItem")->trigger();
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("terminate"));
}

} // namespace
} // namespace barquell::test
