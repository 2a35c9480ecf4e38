// The class's side, with the program's own window and tabs.

#include "FakeApplications.h"
#include "PreferencesWindowFixture.h"

#include "menubar/MenuBarClasses.h"
#include "preferences/tabs/PreferencesTabTouchBar.h"
#include "preferences/tabs/PreferencesTabsClasses.h"
#include "shortcuts/controls/ShortcutControls.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QtTest/qtestspontaneevent.h>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class SharedPreferencesTest : public PreferencesWindowFixture {
protected:
    SharedPreferencesTest() {
        applications.install();
        registerMenuBarClasses();
        registerShortcutControls();
        registerPreferencesTabs();
    }

    template <typename... Arguments>
    void show(Arguments... arguments) {
        preferences.showWindow(arguments...);
        here.loop.runPending(); // the process comes to the foreground first
    }

    PreferencesWindowController &shared() {
        return *qobject_cast<PreferencesWindowController *>(preferences.window()->delegateObject());
    }
    QString shownIdentifier() { return shared().currentTab()->identifier(); }

    static void deleteWhatIsLeft() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    FakeApplications applications;
    const PreferencesWindowController::Class &preferences = PreferencesWindowController::cls();
};

} // namespace

TEST_F(SharedPreferencesTest, WithoutASharedControllerNothingHappens) {
    EXPECT_EQ(preferences.window(), nullptr);
    EXPECT_EQ(preferences.windowIfTabPresented(QStringLiteral("General")), nullptr);
    preferences.closeWindow(nullptr);
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(SharedPreferencesTest, ShowingMakesTheControllerOnceAndTheWindowVisible) {
    show(nullptr);
    QWidget *first = preferences.window();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(shownIdentifier(), QStringLiteral("General"));
    show(nullptr, QStringLiteral("Shortcuts"));
    EXPECT_EQ(preferences.window(), first);
    EXPECT_EQ(preferences.windowIfTabPresented(QStringLiteral("Shortcuts")), first);
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(SharedPreferencesTest, AnUnknownTabLeavesTheCurrentOneAndTheWindowIsShown) {
    show(nullptr, QStringLiteral("Gone"));
    EXPECT_EQ(shownIdentifier(), QStringLiteral("General"));
    EXPECT_TRUE(preferences.window()->isVisible());
}

TEST_F(SharedPreferencesTest, ClosingDropsTheControllerWithItsTabsAndViews) {
    show(nullptr);
    const QPointer<QWidget> oldWindow = preferences.window();
    const QPointer<PreferencesTab> oldTab = shared().currentTab();
    const QPointer<QWidget> oldView = oldTab->view();
    preferences.closeWindow(nullptr);
    EXPECT_EQ(preferences.window(), nullptr);
    deleteWhatIsLeft();
    EXPECT_TRUE(oldWindow.isNull());
    EXPECT_TRUE(oldTab.isNull());
    EXPECT_TRUE(oldView.isNull());
    show(nullptr);
    EXPECT_NE(preferences.window(), nullptr);
}

TEST_F(SharedPreferencesTest, AControllerThatIsNotTheSharedOneLeavesThatAlone) {
    show(nullptr);
    const auto other = PreferencesWindowController::create();
    other->showWindow(nullptr);
    other->window()->close();
    EXPECT_NE(preferences.window(), nullptr);
}

TEST_F(SharedPreferencesTest, TheAppsTabIsRememberedAsTheTouchBarTab) {
    show(nullptr, QStringLiteral("TouchBar"));
    auto *touchBar = qobject_cast<PreferencesTabTouchBar *>(shared().currentTab());
    ASSERT_NE(touchBar, nullptr);
    touchBar->showApps({});
    EXPECT_EQ(shownIdentifier(), QStringLiteral("Apps"));
    EXPECT_EQ(stored("PreferencesWindowTabIdentifier"), QStringLiteral("TouchBar"));
    EXPECT_EQ(preferences.window()->selectedItemIdentifier(), QStringLiteral("TouchBar"));
    preferences.closeWindow(nullptr);
    show(nullptr);
    EXPECT_EQ(shownIdentifier(), QStringLiteral("TouchBar"));
}

TEST_F(SharedPreferencesTest, TheTouchBarItemLeadsBackFromTheAppsTab) {
    show(nullptr, QStringLiteral("TouchBar"));
    qobject_cast<PreferencesTabTouchBar *>(shared().currentTab())->showApps({});
    for (QAction *item : preferences.window()->findChild<QToolBar *>()->actions()) {
        if (item->isChecked()) {
            item->trigger();
        }
    }
    EXPECT_EQ(shownIdentifier(), QStringLiteral("TouchBar"));
    EXPECT_EQ(preferences.window()->selectedItemIdentifier(), QStringLiteral("TouchBar"));
}

TEST_F(SharedPreferencesTest, ShowingTheAppsWhileTheyAreShownDoesNothing) {
    show(nullptr, QStringLiteral("TouchBar"));
    auto *touchBar = qobject_cast<PreferencesTabTouchBar *>(shared().currentTab());
    touchBar->showApps({});
    settle();
    const QByteArray before = preferences.window()->saveGeometry();
    UserDefaults::standard().removeObjectForKey(QStringLiteral("PreferencesWindowTabIdentifier"));
    touchBar->showApps({});
    EXPECT_FALSE(stored("PreferencesWindowTabIdentifier").isValid()); // it became current no second time
    settle();
    EXPECT_EQ(preferences.window()->saveGeometry(), before);
    touchBar->appsTab()->closeTab({});
    EXPECT_EQ(shownIdentifier(), QStringLiteral("TouchBar"));
}

TEST_F(SharedPreferencesTest, TheUserCannotCloseAWindowWithASheet) {
    show(nullptr);
    QDialog sheet(preferences.window());
    sheet.setWindowModality(Qt::WindowModal);
    sheet.open();
    QWidget *window = preferences.window();
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event); // as its button sends it
    qApp->notify(window, &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_TRUE(window->isVisible());
    sheet.close();
    preferences.closeWindow(nullptr);
    EXPECT_EQ(preferences.window(), nullptr);
}

TEST_F(SharedPreferencesTest, AKeyOfTheWindowPassesThroughAChoiceThatHasTheFocus) {
    show(nullptr, QStringLiteral("TouchBar"));
    auto *combo = shared().currentTab()->view()->findChild<QComboBox *>(QStringLiteral("pauseKeyOptionType"));
    QKeyEvent event(QEvent::KeyPress, Qt::Key_1, Qt::ControlModifier, QStringLiteral("1"));
    QApplication::sendEvent(combo, &event);
    EXPECT_EQ(shownIdentifier(), QStringLiteral("General"));
}

TEST_F(SharedPreferencesTest, EveryTabGivesItsOwnViewWithoutComplaint) {
    show(nullptr);
    for (const char *identifier : {"General", "TouchBar", "Shortcuts"}) {
        PreferencesTab *each = shared().tabs().value(QString::fromLatin1(identifier));
        ASSERT_NE(each, nullptr) << identifier;
        EXPECT_FALSE(each->view()->children().isEmpty()) << identifier;
    }
    EXPECT_FALSE(shared().expertTab()->view()->children().isEmpty());
    EXPECT_THAT(log.lines, IsEmpty());
}

} // namespace barquell::test
