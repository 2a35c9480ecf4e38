// The main menu's keys, in the windows that come to the foreground.

#include "app/AppFixture.h"
#include "process/AppHelpers.h"

#include <QTest>

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WindowMenuTest : public AppFixture {
protected:
    void launchWithPreferences() {
        launch();
        ASSERT_TRUE(preferencesAreShown());
        here.platform.lifecycle.journal.clear();
        ASSERT_TRUE(QTest::qWaitForWindowActive(preferences()));
    }

    /// Presses and releases it with Control held.
    void press(QWidget &window, Qt::Key key) {
        QTest::keyClick(window.windowHandle(), key, Qt::ControlModifier);
        here.loop.runPending();
    }
};

TEST_F(WindowMenuTest, TheQuitKeyEndsTheProgram) {
    launchWithPreferences();
    press(*preferences(), Qt::Key_Q);
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("terminate"));
}

TEST_F(WindowMenuTest, TheBackgroundKeyClosesTheWindowsAndTheProgramGoesOn) {
    launchWithPreferences();
    press(*preferences(), Qt::Key_B);
    EXPECT_FALSE(preferencesAreShown());
    EXPECT_TRUE(AppHelpers::isBackground());
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty());
}

TEST_F(WindowMenuTest, WithLazyQuitTheQuitKeyOnlyClosesTheWindowsAndTheOtherIsNone) {
    set("LazyQuit", true);
    launchWithPreferences();
    press(*preferences(), Qt::Key_B);
    EXPECT_TRUE(preferencesAreShown());
    press(*preferences(), Qt::Key_Q);
    EXPECT_FALSE(preferencesAreShown());
    EXPECT_TRUE(AppHelpers::isBackground());
    EXPECT_THAT(here.platform.lifecycle.journal, IsEmpty());
}

TEST_F(WindowMenuTest, AnOpenWindowFollowsTheSetting) {
    launchWithPreferences();
    set("LazyQuit", true);
    set("LazyQuit", false);
    press(*preferences(), Qt::Key_Q);
    EXPECT_THAT(here.platform.lifecycle.journal, ElementsAre("terminate"));
}

TEST_F(WindowMenuTest, ThePreferencesKeyWorksInAnotherWindowOfTheProgram) {
    launchSilently();
    QWidget other;
    AppHelpers::showForegroundWindow(&other);
    here.loop.runPending();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    press(other, Qt::Key_Comma);
    EXPECT_TRUE(preferencesAreShown());
}

TEST_F(WindowMenuTest, AWindowThatIsShownAgainHasEachItemOnce) {
    launchSilently();
    QWidget window;
    for (int i = 0; i < 2; ++i) {
        AppHelpers::showForegroundWindow(&window);
        here.loop.runPending();
        EXPECT_EQ(window.actions(), application.mainMenu()->actions());
    }
}

TEST_F(WindowMenuTest, NoMenuIsNoError) {
    application.setMainMenu(nullptr);
    QWidget window;
    AppHelpers::showForegroundWindow(&window);
    here.loop.runPending();
    EXPECT_THAT(window.actions(), IsEmpty());
}

} // namespace
} // namespace barquell::test
