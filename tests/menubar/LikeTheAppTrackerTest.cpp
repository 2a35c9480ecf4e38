#include "menubar/LikeTheAppTracker.h"

#include "foundation/Bundle.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

#include <gmock/gmock.h>

namespace barquell::test {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr auto kDay = 24h;

QString text(const char *key) {
    return Bundle::localizedString(QString::fromLatin1(key));
}

class LikeTheAppTrackerTest : public testing::Test {
protected:
    LikeTheAppTrackerTest() {
        place();
        NotificationCenter::defaultCenter().addObserver(
            _observer, QStringLiteral("com.vexolith.like-the-app.button"),
            [this](const Notification &notification) {
                EXPECT_EQ(notification.object, nullptr);
                EXPECT_TRUE(notification.userInfo.isEmpty());
                announced.push_back(LikeTheAppTracker::canDisplayButton());
            });
    }

    ~LikeTheAppTrackerTest() override {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            widget->close();
        }
    }
    LikeTheAppTrackerTest(const LikeTheAppTrackerTest &) = delete;
    LikeTheAppTrackerTest &operator=(const LikeTheAppTrackerTest &) = delete;

    static QDateTime now() { return here().loop.wallClock(); }
    static Place &here() { return place(); }

    static QVariant storedDate() {
        return UserDefaults::standard().objectForKey(QStringLiteral("LTADisplayDate"));
    }
    static void storeDate(const QVariant &date) {
        UserDefaults::standard().setObject(date, QStringLiteral("LTADisplayDate"));
    }

    /// The question that stands open; nullptr without one.
    static QMessageBox *dialog() {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible()) {
                return box;
            }
        }
        return nullptr;
    }

    static void ask(QWidget *window = nullptr) {
        LikeTheAppTracker::showDialogModalForWindow(window);
        ASSERT_NE(dialog(), nullptr);
    }

    static void answer(const char *key) {
        for (QAbstractButton *button : dialog()->buttons()) {
            if (button->text() == text(key)) {
                button->click();
                return;
            }
        }
        FAIL() << "no such answer: " << key;
    }

    /// What each answer promises: the entry disappears at once and is back at the date, not before.
    void expectHiddenFor(std::chrono::hours delay) {
        EXPECT_EQ(storedDate(), now().addSecs(std::chrono::seconds(delay).count()));
        EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
        EXPECT_THAT(announced, ElementsAre(false));
        here().loop.advanceBy(delay - 1s);
        EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
        here().loop.advanceBy(1s);
        EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
        EXPECT_THAT(announced, ElementsAre(false, true));
    }

    /// The schedule is offering.
    void startOffering() {
        storeDate(now().addDays(-1));
        LikeTheAppTracker::start();
        ASSERT_TRUE(LikeTheAppTracker::canDisplayButton());
    }

    std::vector<bool> announced; ///< whether the entry could be shown, at each announcement
    LogCapture log;

private:
    QObject _observer;
};

} // namespace

TEST_F(LikeTheAppTrackerTest, TheFirstLaunchHidesTheEntryAndOffersItAfterFiveDays) {
    const QDateTime date = now().addDays(5);
    LikeTheAppTracker::start();
    EXPECT_EQ(storedDate(), date);
    EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
    EXPECT_THAT(announced, IsEmpty());
    here().loop.advanceBy(5 * kDay - 1s);
    EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
    here().loop.advanceBy(1s);
    EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
    EXPECT_THAT(announced, ElementsAre(true));
    EXPECT_EQ(storedDate(), date);
}

TEST_F(LikeTheAppTrackerTest, ALaunchBeforeTheStoredDateWaitsForIt) {
    storeDate(now().addDays(2));
    LikeTheAppTracker::start();
    EXPECT_EQ(storedDate(), now().addDays(2));
    here().loop.advanceBy(2 * kDay - 1s);
    EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
    here().loop.advanceBy(1s);
    EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
}

TEST_F(LikeTheAppTrackerTest, ALaunchAfterTheStoredDateShowsTheEntryAtOnceWithoutATimer) {
    startOffering();
    here().loop.advanceBy(400 * kDay);
    EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(LikeTheAppTrackerTest, ADateEqualToNowDoesNotCountAndFiresAtTheNextPass) {
    storeDate(now());
    LikeTheAppTracker::start();
    EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
    here().loop.runPending();
    EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
    EXPECT_THAT(announced, ElementsAre(true));
}

TEST_F(LikeTheAppTrackerTest, AStoredValueThatIsNoDateCountsAsAbsent) {
    storeDate(QStringLiteral("soon"));
    LikeTheAppTracker::start();
    EXPECT_EQ(storedDate(), now().addDays(5));
    EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
}

TEST_F(LikeTheAppTrackerTest, AClockThatJumpsAheadIsNoticedWithinADay) {
    LikeTheAppTracker::start();
    here().loop.setWallClock(now().addDays(6));
    here().loop.advanceBy(kDay);
    EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
}

TEST_F(LikeTheAppTrackerTest, AClockThatIsSetBackPutsTheOfferOff) {
    LikeTheAppTracker::start();
    here().loop.setWallClock(now().addDays(-30));
    here().loop.advanceBy(35 * kDay - 1s);
    EXPECT_FALSE(LikeTheAppTracker::canDisplayButton());
    here().loop.advanceBy(1s);
    EXPECT_TRUE(LikeTheAppTracker::canDisplayButton());
}

TEST_F(LikeTheAppTrackerTest, TheQuestionHasItsTextsAndItsAnswersInOrder) {
    startOffering();
    ask();
    EXPECT_TRUE(dialog()->text().contains(QStringLiteral("Barquell")));
    EXPECT_FALSE(dialog()->text().contains(QStringLiteral("%@")));
    EXPECT_EQ(dialog()->informativeText(), text("LIKETHEAPP_DESC"));
    QStringList answers;
    for (const QAbstractButton *button : dialog()->buttons()) {
        answers.append(button->text());
    }
    EXPECT_THAT(answers, testing::UnorderedElementsAre(text("LIKETHEAPP_YES"), text("LIKETHEAPP_LATER"),
                                                       text("LIKETHEAPP_NO")));
    EXPECT_EQ(dialog()->defaultButton()->text(), text("LIKETHEAPP_YES"));
    EXPECT_EQ(dialog()->escapeButton()->text(), text("LIKETHEAPP_NO"));
}

TEST_F(LikeTheAppTrackerTest, TheAnswerLaterHidesTheEntryForFiveDays) {
    startOffering();
    ask();
    answer("LIKETHEAPP_LATER");
    EXPECT_THAT(here().platform.workspace.openedUrls, IsEmpty());
    expectHiddenFor(5 * kDay);
}

TEST_F(LikeTheAppTrackerTest, TheAnswerYesOpensTheReviewPageAndHidesTheEntryForAYear) {
    startOffering();
    ask();
    answer("LIKETHEAPP_YES");
    ASSERT_EQ(here().platform.workspace.openedUrls.size(), 1);
    const QUrl page = here().platform.workspace.openedUrls.first();
    EXPECT_EQ(page.scheme(), QStringLiteral("macappstore"));
    EXPECT_EQ(page.query(), QStringLiteral("action=write-review"));
    expectHiddenFor(365 * kDay);
}

TEST_F(LikeTheAppTrackerTest, AReviewPageThatNobodyOpensReschedulesAllTheSame) {
    startOffering();
    here().platform.workspace.opensUrls = false;
    ask();
    answer("LIKETHEAPP_YES");
    expectHiddenFor(365 * kDay);
}

TEST_F(LikeTheAppTrackerTest, TheAnswerNoHidesTheEntryForAYear) {
    startOffering();
    ask();
    answer("LIKETHEAPP_NO");
    EXPECT_THAT(here().platform.workspace.openedUrls, IsEmpty());
    expectHiddenFor(365 * kDay);
}

TEST_F(LikeTheAppTrackerTest, AQuestionThatEndsWithoutAnAnswerCountsAsNo) {
    startOffering();
    ask();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(dialog(), &escape);
    EXPECT_EQ(dialog(), nullptr);
    expectHiddenFor(365 * kDay);
}

TEST_F(LikeTheAppTrackerTest, TheQuestionBeforeTheOfferWorksAsUsualAndReschedules) {
    LikeTheAppTracker::start();
    here().loop.advanceBy(1 * kDay);
    ask();
    answer("LIKETHEAPP_LATER");
    expectHiddenFor(5 * kDay); // and not at the first date, whose timer has gone
}

TEST_F(LikeTheAppTrackerTest, WithAWindowTheQuestionIsItsSheetElseModalForTheApplication) {
    QWidget window;
    window.show();
    ask(&window);
    EXPECT_EQ(dialog()->parentWidget(), &window);
    EXPECT_EQ(dialog()->windowModality(), Qt::WindowModal);
    answer("LIKETHEAPP_LATER");
    ask();
    EXPECT_EQ(dialog()->parentWidget(), nullptr);
    EXPECT_EQ(dialog()->windowModality(), Qt::ApplicationModal);
}

TEST_F(LikeTheAppTrackerTest, ASecondQuestionIsNotAskedOverTheFirst) {
    ask();
    const QMessageBox *first = dialog();
    ask();
    EXPECT_EQ(dialog(), first);
    answer("LIKETHEAPP_LATER");
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(LikeTheAppTrackerTest, AQuestionThatGoesWithItsWindowHidesTheEntryForAYear) {
    startOffering();
    auto window = std::make_unique<QWidget>();
    window->show();
    ask(window.get());
    window.reset();
    expectHiddenFor(365 * kDay);
    ask();
}

} // namespace barquell::test
