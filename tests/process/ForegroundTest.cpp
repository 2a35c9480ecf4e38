// Coming to the foreground and leaving it.

#include "process/AppHelpersFixture.h"

#include <QDialog>

namespace barquell::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class ForegroundTest : public AppHelpersFixture {
protected:
    ForegroundTest() { begin(); }

    void show(QWidget &shown) {
        AppHelpers::showForegroundWindow(&shown);
        here.loop.runPending();
        forget();
    }

    QWidget window;
    QWidget other;
};

TEST_F(ForegroundTest, ANilWindowIsSaidAndNothingElseHappens) {
    AppHelpers::showForegroundWindow(nullptr);
    here.loop.runPending();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Attempt to show nil window")));
    EXPECT_THAT(life.journal, IsEmpty());
    EXPECT_TRUE(AppHelpers::isBackground());
}

TEST_F(ForegroundTest, AWindowComesUpWhenTheProcessIsInTheForeground) {
    AppHelpers::showForegroundWindow(&window);
    EXPECT_FALSE(AppHelpers::isBackground());
    EXPECT_FALSE(window.isVisible());
    here.loop.runPending();
    EXPECT_THAT(life.journal, ElementsAre("bring first process to front", "become regular", "activate"));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ForegroundTest, InTheForegroundAWindowComesUpAtOnce) {
    show(window);
    AppHelpers::showForegroundWindow(&other);
    EXPECT_TRUE(other.isVisible());
    EXPECT_THAT(life.journal, ElementsAre("activate"));
}

TEST_F(ForegroundTest, ACompletionRunsAfterTheActivation) {
    AppHelpers::becomeForegroundProcessCompletionHandler([this] { life.journal.emplace_back("complete"); });
    EXPECT_THAT(life.journal, IsEmpty());
    here.loop.runPending();
    EXPECT_THAT(life.journal,
                ElementsAre("bring first process to front", "become regular", "activate", "complete"));
    forget();
    AppHelpers::becomeForegroundProcessCompletionHandler([this] { life.journal.emplace_back("complete"); });
    EXPECT_THAT(life.journal, ElementsAre("activate", "complete"));
    forget();
    AppHelpers::becomeForegroundProcessCompletionHandler({});
    EXPECT_THAT(life.journal, ElementsAre("activate"));
}

TEST_F(ForegroundTest, ASwitchBackBeforeTheRunLoopCancelsTheWayToTheForeground) {
    bool completed = false;
    AppHelpers::becomeForegroundProcessCompletionHandler([&] { completed = true; });
    AppHelpers::becomeBackgroundProcess();
    here.loop.runPending();
    EXPECT_THAT(life.journal, IsEmpty());
    EXPECT_FALSE(completed);
    here.loop.advanceBy(100ms);
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(ForegroundTest, ClosingTheLastForegroundWindowHidesTheDockIconAfterATenthOfASecond) {
    show(window);
    window.close();
    EXPECT_TRUE(AppHelpers::isBackground());
    here.loop.advanceBy(99ms);
    EXPECT_THAT(life.journal, IsEmpty());
    here.loop.advanceBy(1ms);
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(ForegroundTest, OpeningAWindowWithinThatTimeKeepsTheDockIcon) {
    show(window);
    window.close();
    here.loop.advanceBy(99ms);
    AppHelpers::showForegroundWindow(&window);
    here.loop.advanceBy(1s);
    EXPECT_EQ(life.policy, ActivationPolicy::Regular);
    EXPECT_THAT(life.journal, testing::Not(testing::Contains("become accessory")));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ForegroundTest, TheProcessStaysWhileAnotherForegroundWindowIsOpen) {
    show(window);
    show(other);
    window.close();
    EXPECT_FALSE(AppHelpers::isBackground());
    other.close();
    EXPECT_TRUE(AppHelpers::isBackground());
}

TEST_F(ForegroundTest, AWindowShownTwiceIsClosedOnce) {
    show(window);
    show(window);
    window.close();
    EXPECT_TRUE(AppHelpers::isBackground());
}

TEST_F(ForegroundTest, ClosingAWindowThatNeverNeededTheForegroundEndsItWhereNothingElseNeedsIt) {
    AppHelpers::becomeForegroundProcessCompletionHandler({});
    here.loop.runPending();
    forget();
    other.show();
    other.close();
    here.loop.advanceBy(100ms);
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(ForegroundTest, ADockIconThatIsNotOptionalStaysWithoutWindows) {
    show(window);
    set("OptionalDockIcon", false);
    forget();
    window.close();
    here.loop.advanceBy(1s);
    EXPECT_FALSE(AppHelpers::isBackground());
    EXPECT_THAT(life.journal, IsEmpty());
}

TEST_F(ForegroundTest, AForegroundWindowThatWasDestroyedNeedsTheForegroundNoMore) {
    {
        QWidget shortLived;
        show(shortLived);
    }
    EXPECT_TRUE(AppHelpers::canBecomeBackgroundProcess());
    show(window);
    window.close();
    EXPECT_TRUE(AppHelpers::isBackground());
}

TEST_F(ForegroundTest, WithoutWindowsTheProcessCanBecomeABackgroundProcess) {
    EXPECT_TRUE(AppHelpers::canBecomeBackgroundProcess());
}

TEST_F(ForegroundTest, AWindowWhoseCloseButtonIsDisabledHoldsTheForeground) {
    show(window);
    EXPECT_TRUE(AppHelpers::canBecomeBackgroundProcess());
    QDialog sheet(&window);
    sheet.setWindowModality(Qt::WindowModal);
    sheet.open();
    EXPECT_FALSE(AppHelpers::canBecomeBackgroundProcess());
    AppHelpers::becomeBackgroundProcess();
    here.loop.advanceBy(1s);
    EXPECT_FALSE(AppHelpers::isBackground());
    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(life.journal, IsEmpty());
}

TEST_F(ForegroundTest, AWindowWithoutACloseButtonHoldsTheForeground) {
    window.setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    show(window);
    EXPECT_FALSE(AppHelpers::canBecomeBackgroundProcess());
}

TEST_F(ForegroundTest, BecomingABackgroundProcessClosesTheWindowsFromTheRunLoop) {
    show(window);
    show(other);
    AppHelpers::becomeBackgroundProcess();
    EXPECT_TRUE(AppHelpers::isBackground());
    EXPECT_TRUE(AppHelpers::canBecomeBackgroundProcess()); // they are handed over
    EXPECT_TRUE(window.isVisible());
    here.loop.runPending();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(other.isVisible());
    EXPECT_THAT(life.journal, IsEmpty());
    here.loop.advanceBy(100ms);
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(ForegroundTest, BecomingABackgroundProcessTwiceSwitchesOnce) {
    show(window);
    AppHelpers::becomeBackgroundProcess();
    AppHelpers::becomeBackgroundProcess();
    here.loop.advanceBy(1s);
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(ForegroundTest, ComingBackWithinTheGraceKeepsTheProcessRegular) {
    show(window);
    AppHelpers::becomeBackgroundProcess();
    here.loop.advanceBy(50ms);
    AppHelpers::becomeForegroundProcessCompletionHandler({});
    here.loop.advanceBy(1s);
    EXPECT_THAT(life.journal, ElementsAre("bring first process to front", "become regular", "activate"));
}

} // namespace
} // namespace barquell::test
