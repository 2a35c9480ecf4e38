#include "StatusItemFixture.h"

#include "foundation/Bundle.h"
#include "menubar/KeyEquivalent.h"
#include "menubar/MenuBarClasses.h"
#include "menubar/StatusItemController.h"
#include "shortcuts/controls/ShortcutControls.h"

#include <QApplication>
#include <QKeyEvent>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

/// Owns what the file makes and takes its actions, as the application controller does.
class FileOwner : public QObject, public AppLifecycleDelegate {
    Q_OBJECT
    Q_PROPERTY(barquell::StatusItemController *statusItemController MEMBER controller)

public:
    void applicationDidFinishLaunching() override {}
    bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) override { return true; }
    void applicationWillTerminate() override {}

    Q_INVOKABLE void toggleFrontmostAppIgnore(const QVariant & /*sender*/) { actions.emplace_back("bypass"); }
    Q_INVOKABLE void showPreferencesWindow(const QVariant & /*sender*/) {
        actions.emplace_back("preferences");
    }
    Q_INVOKABLE void showAuthorizationWindow(const QVariant & /*sender*/) {
        actions.emplace_back("authorization");
    }
    Q_INVOKABLE void likeTheApp(const QVariant & /*sender*/) { actions.emplace_back("like"); }
    Q_INVOKABLE void becomeBackgroundProcess(const QVariant & /*sender*/) {
        actions.emplace_back("background");
    }

    StatusItemController *controller = nullptr;
    std::vector<std::string> actions;
};

namespace {

/// The status item as its interface file lays it out.
class StatusItemFileTest : public StatusItemFixture {
protected:
    StatusItemFileTest() {
        registerMenuBarClasses();
        registerShortcutControls();
        here.platform.lifecycle.setDelegate(&owner);
        objects = StatusItemController::loadFromNib(&owner);
    }

    QAction *itemNamed(const char *name) {
        for (QAction *action : owner.controller->statusItemMenu()->actions()) {
            if (action->objectName() == QLatin1String(name)) {
                return action;
            }
        }
        return nullptr;
    }

    FileOwner owner;
    TopLevelObjects objects;
};

} // namespace

TEST_F(StatusItemFileTest, IsWiredToItsOwnerWithEveryOutlet) {
    EXPECT_THAT(log.lines, IsEmpty());
    ASSERT_NE(owner.controller, nullptr);
    ASSERT_NE(owner.controller->statusItemMenu(), nullptr);
    EXPECT_EQ(item().menu(), owner.controller->statusItemMenu());
    EXPECT_EQ(owner.controller->toggleAppMenuItem(), itemNamed("toggleAppMenuItem"));
    EXPECT_EQ(owner.controller->bypassAppMenuItem(), itemNamed("bypassAppMenuItem"));
}

TEST_F(StatusItemFileTest, TheMenuHoldsEverythingInItsOrder) {
    std::vector<std::string> names;
    for (const QAction *action : owner.controller->statusItemMenu()->actions()) {
        names.push_back(action->isSeparator() ? "-" : action->objectName().toStdString());
    }
    EXPECT_THAT(names, ElementsAre("toggleAppMenuItem", "bypassAppMenuItem", "-", "preferencesMenuItem",
                                   "authorizationMenuItem", "likeTheAppMenuItem", "-",
                                   "backgroundModeMenuItem", "quitMenuItem"));
}

TEST_F(StatusItemFileTest, TheBypassTitleHasOnePlaceholder) {
    EXPECT_EQ(itemNamed("bypassAppMenuItem")->text().count(QStringLiteral("%@")), 1);
    applications.names = {{QStringLiteral("/editor"), QStringLiteral("Editor")}};
    owner.controller->setFrontmostApp(
        RunningApplication{.bundleIdentifier = {}, .bundlePath = QStringLiteral("/editor")});
    EXPECT_TRUE(itemNamed("bypassAppMenuItem")->text().contains(QStringLiteral("Editor")));
}

TEST_F(StatusItemFileTest, TheToggleShowsAndEditsTheSetting) {
    QAction *toggle = itemNamed("toggleAppMenuItem");
    EXPECT_TRUE(toggle->isChecked());
    toggle->trigger();
    EXPECT_FALSE(UserDefaults::standard().boolForKey(QStringLiteral("Enabled")));
    EXPECT_EQ(item().opacity(), 0.5);
    UserDefaults::standard().setObject(true, QStringLiteral("Enabled"));
    EXPECT_TRUE(toggle->isChecked());
}

TEST_F(StatusItemFileTest, TheOtherItemsSendTheirActions) {
    for (const char *name : {"bypassAppMenuItem", "preferencesMenuItem", "authorizationMenuItem",
                             "likeTheAppMenuItem", "backgroundModeMenuItem"}) {
        itemNamed(name)->trigger();
    }
    EXPECT_THAT(owner.actions, ElementsAre("bypass", "preferences", "authorization", "like", "background"));
    itemNamed("quitMenuItem")->trigger();
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty()); // the menu outlives its own choice
    here.loop.runPending();
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("terminate"));
}

TEST_F(StatusItemFileTest, TheQuitKeysFollowLazyQuit) {
    EXPECT_EQ(keyEquivalent(*itemNamed("quitMenuItem")), QStringLiteral("q"));
    UserDefaults::standard().setObject(true, QStringLiteral("LazyQuit"));
    EXPECT_TRUE(itemNamed("quitMenuItem")->shortcut().isEmpty());
    EXPECT_EQ(itemNamed("backgroundModeMenuItem")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
}

TEST_F(StatusItemFileTest, TheKeysShownInTheOpenMenuChooseItsItems) {
    const auto press = [this](int key, Qt::KeyboardModifiers modifiers) {
        owner.actions.clear();
        item().click({});
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(item().menu(), &event);
        const bool closed = !item().menu()->isVisible();
        item().menu()->hide();
        return closed;
    };
    EXPECT_TRUE(press(Qt::Key_B, Qt::ControlModifier));
    EXPECT_THAT(owner.actions, ElementsAre("background"));
    EXPECT_FALSE(press(Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_THAT(owner.actions, IsEmpty());
    itemNamed("backgroundModeMenuItem")->setVisible(false);
    EXPECT_FALSE(press(Qt::Key_B, Qt::ControlModifier));
    EXPECT_THAT(owner.actions, IsEmpty());
}

TEST_F(StatusItemFileTest, DroppingWhatWasMadeDropsTheItemAlsoWithItsMenuOpen) {
    item().click({});
    ASSERT_FALSE(ShortcutMonitor::cls().enabled());
    objects.clear();
    EXPECT_EQ(bar.item(), nullptr);
    EXPECT_TRUE(ShortcutMonitor::cls().enabled());
}

} // namespace barquell::test

#include "StatusItemFileTest.moc"
