// The authorization window, from its interface file.

#include "menubar/AuthWindowController.h"
#include "menubar/MenuBarClasses.h"
#include "menubar/PassiveImageView.h"
#include "preferences/ContainerView.h"
#include "preferences/NestedLoop.h"
#include "preferences/PreferencesClasses.h"
#include "preferences/PreferencesWindowController.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

#include <gmock/gmock.h>

#include <cmath>

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::NotNull;

namespace {

class AuthWindowTest : public testing::Test {
protected:
    AuthWindowTest() {
        here.platform.trust.trusted = false;
        registerPreferencesClasses();
        registerMenuBarClasses();
    }

    void show() {
        authorization.showWindow(nullptr);
        here.loop.runPending(); // the process comes to the foreground first
        controller = &authorization.singleton();
    }

    ContentWindow &window() { return *controller->window(); }
    QWidget *page() { return window().contentView()->contentView(); }
    QRect frame() { return window().frameGeometry(); }

    void trust(bool trusted) {
        here.platform.trust.trusted = trusted;
        TrustedProcessChecker::checkIsTrusted();
    }

    void click(const char *button) {
        page()->findChild<QAbstractButton *>(QString::fromLatin1(button))->click();
    }

    /// The pages need not differ; here they do.
    void makeThePagesDiffer() { controller->authorizationCompleteView()->resize(601, 301); }

    Place &here = place();
    LogCapture log;
    const AuthWindowController::Class &authorization = AuthWindowController::cls();
    QPointer<AuthWindowController> controller;
};

} // namespace

TEST_F(AuthWindowTest, UntrustedItShowsWhatIsRequired) {
    show();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(page(), controller->authorizationRequiredView());
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Authorization Required"));
    EXPECT_EQ(window().contentView()->contentLayoutMode(), ContainerLayoutTop);
    EXPECT_EQ(window().contentView()->size(), page()->size());
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(AuthWindowTest, TrustedAlreadyItOpensOnTheCompletePageWithoutAnimation) {
    controller = &authorization.singleton();
    makeThePagesDiffer();
    here.platform.trust.trusted = true;
    show();
    EXPECT_EQ(page(), controller->authorizationCompleteView());
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Authorization Complete"));
    EXPECT_EQ(window().size(), QSize(601, 301)); // at once
    const QRect before = frame();
    here.loop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(frame(), before);
}

TEST_F(AuthWindowTest, ItTurnsToTheOtherPageWhenTrustComesAndBackWhenItGoes) {
    show();
    trust(true);
    EXPECT_EQ(page(), controller->authorizationCompleteView());
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Authorization Complete"));
    trust(false);
    EXPECT_EQ(page(), controller->authorizationRequiredView());
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Authorization Required"));
}

TEST_F(AuthWindowTest, APageOfAnotherSizeIsReachedByAnAnimationAboutTheMiddle) {
    show();
    const QRectF before = window().frame();
    const QSizeF after = before.size() - page()->size() + QSizeF(601, 301);
    makeThePagesDiffer();
    trust(true);
    EXPECT_EQ(window().frame(), before); // it has only begun
    here.loop.advanceBy(std::chrono::milliseconds(100));
    EXPECT_GT(window().frame().width(), before.width());
    here.loop.advanceBy(std::chrono::seconds(1));
    const QPointF origin(before.x() + std::floor((before.width() - after.width()) / 2),
                         before.y() + std::floor((before.height() - after.height()) / 2));
    EXPECT_EQ(window().frame(), QRectF(origin, after));
}

TEST_F(AuthWindowTest, PagesOfEqualSizeChangeWithoutAnyChangeOfTheFrame) {
    show();
    controller->authorizationCompleteView()->resize(page()->size());
    const QRect before = frame();
    trust(true);
    here.loop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(page(), controller->authorizationCompleteView());
    EXPECT_EQ(frame(), before);
}

TEST_F(AuthWindowTest, ThePageThatIsShownAlreadyChangesNothing) {
    show();
    page()->resize(50, 50); // were it placed again, the window would follow
    const QRect before = frame();
    controller->setPresentedView(page());
    controller->processTrustedStateDidChange(false);
    here.loop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(frame(), before);
}

TEST_F(AuthWindowTest, ClosingDropsTheControllerAndShowingMakesAnother) {
    show();
    const QPointer<AuthWindowController> first = controller;
    const QPointer<QWidget> firstWindow = &window();
    window().close();
    trust(true); // nobody hears of it
    EXPECT_EQ(firstWindow->windowTitle(), QStringLiteral("Authorization Required"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(firstWindow.isNull());
    show();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(page(), controller->authorizationCompleteView());
}

TEST_F(AuthWindowTest, ClosedFromALoopInsideOneOfItsEventsItIsDroppedAfterThatLoop) {
    show();
    const QPointer<AuthWindowController> first = controller;
    {
        const NestedLoop loop;
        window().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(first.isNull());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(first.isNull());
}

TEST_F(AuthWindowTest, ShowingItWhileItIsOpenKeepsIt) {
    show();
    const QPointer<AuthWindowController> first = controller;
    show();
    EXPECT_EQ(controller, first);
    EXPECT_EQ(authorization.window(), &window());
}

TEST_F(AuthWindowTest, OneButtonMakesTheSystemAsk) {
    show();
    click("startButton");
    EXPECT_EQ(here.platform.taps.timesUserWasAsked(), 1);
}

TEST_F(AuthWindowTest, AnotherOpensThePrivacySettings) {
    show();
    click("settingsButton");
    EXPECT_EQ(here.platform.workspace.openedUrls.size(), 1);
}

TEST_F(AuthWindowTest, TheSettingsAreReachedFromTheCompletePageToo) {
    here.platform.trust.trusted = true;
    show();
    click("completeSettingsButton");
    EXPECT_EQ(here.platform.workspace.openedUrls.size(), 1);
}

TEST_F(AuthWindowTest, PrivacySettingsAreNotOfferedWhereThereAreNone) {
    here.platform.trust.privacyPage = false;
    show();
    EXPECT_TRUE(controller->privacyButton()->isHidden());
    EXPECT_TRUE(controller->completePrivacyButton()->isHidden());
}

TEST_F(AuthWindowTest, TheDefaultButtonOfThePageHasTheKeyboard) {
    show();
    EXPECT_EQ(window().focusWidget(), page()->findChild<QWidget *>(QStringLiteral("startButton")));
    trust(true);
    EXPECT_EQ(window().focusWidget(), page()->findChild<QWidget *>(QStringLiteral("preferencesButton")));
}

TEST_F(AuthWindowTest, TheCompletePageCloses) {
    here.platform.trust.trusted = true;
    show();
    const QPointer<QWidget> shown = &window();
    click("closeButton");
    EXPECT_FALSE(shown->isVisible());
}

TEST_F(AuthWindowTest, TheCompletePageLeadsToThePreferencesAndThenCloses) {
    here.platform.trust.trusted = true;
    show();
    const QPointer<QWidget> shown = &window();
    click("preferencesButton"); // whose tabs are not known here; that they were asked for is in the log
    EXPECT_THAT(log.lines, testing::Contains(testing::Truly([](const QString &line) {
                    return line.contains(QStringLiteral("PreferencesWindow"));
                })));
    EXPECT_FALSE(shown->isVisible());
}

TEST_F(AuthWindowTest, ThePicturesTakeNoDropsAndMoveTheWindow) {
    show();
    const auto pictures = page()->findChildren<PassiveImageView *>();
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_FALSE(pictures.front()->acceptDrops());
    EXPECT_TRUE(PassiveImageView::mouseDownCanMoveWindow());
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    press.ignore();
    QApplication::sendEvent(pictures.front(), &press);
    EXPECT_FALSE(press.isAccepted()); // it goes on to the window
}

} // namespace barquell::test
