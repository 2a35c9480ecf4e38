#include "menubar/PermissionPage.h"
#include "preferences/PreferencesClasses.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <QCoreApplication>
#include <QEvent>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

class PermissionPageTest : public testing::Test {
protected:
    PermissionPageTest() {
        here.platform.trust.trusted = false;
        registerPreferencesClasses();
    }

    void show() {
        PermissionPage::show(permission);
        here.loop.runPending();
    }

    QWidget &window() { return *PermissionPage::openWindow(); }

    template <typename Widget>
    Widget &find(const char *name) {
        return *window().findChild<Widget *>(QString::fromLatin1(name));
    }

    QString text(const char *label) { return find<QLabel>(label).text(); }
    QPushButton &button() { return find<QPushButton>("button"); }

    void give(bool given) {
        state.given = given;
        here.platform.trust.trusted = given;
        TrustedProcessChecker::checkIsTrusted();
    }

    Place &here = place();
    LogCapture log;
    Permission::State state;
    Permission::Answer request, withdraw; ///< to what was asked last
    Permission permission{.userName = QStringLiteral("ada & bob"),
                          .state = [this] { return state; },
                          .request = [this](const Permission::Answer &answer) { request = answer; },
                          .withdraw = [this](const Permission::Answer &answer) { withdraw = answer; }};
};

TEST_F(PermissionPageTest, ItSaysThatTheUserMayNotAndOffersToAsk) {
    show();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(text("titleLabel"), QStringLiteral("ada & bob may not hold touches back"));
    EXPECT_TRUE(find<QLabel>("sinceLabel").isHidden());
    EXPECT_TRUE(find<QLabel>("noteLabel").isHidden());
    EXPECT_EQ(button().text(), QStringLiteral("Allow…"));
    button().click();
    EXPECT_TRUE(request);
    EXPECT_FALSE(withdraw);
    EXPECT_TRUE(log.lines.isEmpty());
}

TEST_F(PermissionPageTest, ItSaysSinceWhenTheUserMayAndOffersToWithdraw) {
    state = {.given = true, .since = QDateTime(QDate(2026, 11, 21), QTime(22, 0))};
    show();
    EXPECT_EQ(text("titleLabel"), QStringLiteral("ada & bob may hold touches back"));
    EXPECT_TRUE(text("sinceLabel").contains(QStringLiteral("2026"))) << text("sinceLabel").toStdString();
    EXPECT_EQ(button().text(), QStringLiteral("Withdraw"));
    button().click();
    EXPECT_TRUE(withdraw);
    EXPECT_FALSE(request);
}

TEST_F(PermissionPageTest, WhereTheTimeIsNotKnownNoneIsSaid) {
    state.given = true;
    show();
    EXPECT_TRUE(find<QLabel>("sinceLabel").isHidden());
}

TEST_F(PermissionPageTest, ItFollowsTrustWhileItIsOpen) {
    show();
    give(true);
    EXPECT_EQ(button().text(), QStringLiteral("Withdraw"));
    give(false);
    EXPECT_EQ(button().text(), QStringLiteral("Allow…"));
}

TEST_F(PermissionPageTest, WhatCouldNotBeChangedIsSaidUntilSomethingChanges) {
    show();
    button().click();
    request(Permission::Outcome::Denied);
    EXPECT_FALSE(find<QLabel>("noteLabel").isHidden());
    EXPECT_TRUE(text("noteLabel").startsWith(QStringLiteral("The permission was not given")));
    button().click(); // another try
    EXPECT_TRUE(find<QLabel>("noteLabel").isHidden());
    request(Permission::Outcome::Denied);
    give(true);
    EXPECT_TRUE(find<QLabel>("noteLabel").isHidden());
    button().click();
    withdraw(Permission::Outcome::Done);
    EXPECT_TRUE(find<QLabel>("noteLabel").isHidden());
    withdraw(Permission::Outcome::Silent);
    EXPECT_TRUE(text("noteLabel").startsWith(QStringLiteral("The permission could not be withdrawn")));
}

TEST_F(PermissionPageTest, TheCauseIsSaidAsItIs) {
    show();
    button().click();
    request(Permission::Outcome::Denied);
    EXPECT_TRUE(text("noteLabel").contains(QStringLiteral("declined")));
    request(Permission::Outcome::Silent);
    EXPECT_TRUE(text("noteLabel").startsWith(QStringLiteral("The permission was not given")));
    EXPECT_TRUE(text("noteLabel").endsWith(QStringLiteral("does not answer.")));
    request(Permission::Outcome::Failed);
    EXPECT_TRUE(text("noteLabel").endsWith(QStringLiteral("its log says why.")));
    give(true);
    button().click();
    withdraw(Permission::Outcome::Silent);
    EXPECT_TRUE(text("noteLabel").endsWith(QStringLiteral("does not answer.")));
    withdraw(Permission::Outcome::Failed);
    EXPECT_TRUE(text("noteLabel").endsWith(QStringLiteral("its log says why.")));
}

TEST_F(PermissionPageTest, AnAnswerThatComesAfterItWasClosedIsNobodys) {
    show();
    button().click();
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(PermissionPage::openWindow(), nullptr);
    request(Permission::Outcome::Denied);
    give(true);
    show(); // anew
    EXPECT_EQ(button().text(), QStringLiteral("Withdraw"));
}

TEST_F(PermissionPageTest, ShownAgainItIsTheSameWindow) {
    show();
    const QWidget *before = &window();
    show();
    EXPECT_EQ(&window(), before);
}

} // namespace
} // namespace barquell::test
