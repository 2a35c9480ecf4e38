#include "process/Helpers.h"
#include "foundation/UserDefaults.h"
#include "support/LogCapture.h"
#include "support/Place.h"
#include "support/Wait.h"

#include <QThread>
#include <QThreadPool>

#include <gmock/gmock.h>

#include <atomic>
#include <limits>
#include <stdexcept>

namespace barquell::test {
namespace {

using namespace std::chrono_literals;

class HelpersTest : public testing::Test {
protected:
    Place &here = place();
    LogCapture logged;
    std::atomic<int> runs = 0;
    const Helpers::Block count = [this] { ++runs; };
};

TEST_F(HelpersTest, TheMainThreadRunsItLaterAndNeverInsideTheCall) {
    Helpers::runOnMainThread(count);
    EXPECT_EQ(runs, 0);
    here.loop.runPending();
    EXPECT_EQ(runs, 1);
}

TEST_F(HelpersTest, ADelayOfNothingIsStillLater) {
    for (const double none : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        runs = 0;
        Helpers::runOnMainThread(count, none);
        EXPECT_EQ(runs, 0);
        here.loop.runPending();
        EXPECT_EQ(runs, 1);
    }
}

TEST_F(HelpersTest, ADelayIsInSeconds) {
    Helpers::runOnMainThread(count, 0.25);
    here.loop.advanceBy(249ms);
    EXPECT_EQ(runs, 0);
    here.loop.advanceBy(1ms);
    EXPECT_EQ(runs, 1);
}

TEST_F(HelpersTest, ADelayWithoutEndIsNoShortOne) {
    Helpers::runOnMainThread(count, std::numeric_limits<double>::infinity());
    Helpers::runOnMainThread(count, 1e300);
    here.loop.advanceBy(24h * 365);
    EXPECT_EQ(runs, 0);
}

TEST_F(HelpersTest, AnyThreadReachesTheMainOne) {
    const QThread *main = QThread::currentThread();
    const QThread *ranOn = nullptr;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { Helpers::runOnMainThread([&] { ranOn = QThread::currentThread(); }); }));
    other->start();
    ASSERT_TRUE(other->wait());
    EXPECT_EQ(ranOn, nullptr);
    EXPECT_TRUE(waitFor([&] {
        here.loop.runPending();
        return ranOn != nullptr;
    }));
    EXPECT_EQ(ranOn, main);
}

TEST_F(HelpersTest, TheBackgroundIsAnotherThread) {
    const QThread *main = QThread::currentThread();
    std::atomic<bool> elsewhere = false;
    Helpers::runInBackground([&] { elsewhere = QThread::currentThread() != main; });
    ASSERT_TRUE(QThreadPool::globalInstance()->waitForDone(20000));
    EXPECT_TRUE(elsewhere);
}

TEST_F(HelpersTest, TheBackgroundTakesADelayToo) {
    Helpers::runInBackground(count, 1.0);
    here.loop.advanceBy(999ms);
    QThreadPool::globalInstance()->waitForDone(20000);
    EXPECT_EQ(runs, 0);
    here.loop.advanceBy(1ms);
    ASSERT_TRUE(QThreadPool::globalInstance()->waitForDone(20000));
    EXPECT_EQ(runs, 1);
}

TEST_F(HelpersTest, AnExceptionInTheBackgroundIsOneLine) {
    Helpers::runInBackground([] { throw std::runtime_error("lost"); });
    ASSERT_TRUE(QThreadPool::globalInstance()->waitForDone(20000));
    ASSERT_EQ(logged.lines.size(), 1);
    EXPECT_TRUE(logged.lines.first().contains(QStringLiteral("lost")));
}

TEST_F(HelpersTest, AddressesReachTheWorkspace) {
    here.platform.workspace.opensUrls = false; // the answer is ignored
    Helpers::openURLString(QStringLiteral("https://example.com/?q=1"));
    Helpers::openAccessibilityPrivacyPreferences();
    EXPECT_EQ(here.platform.workspace.openedUrls,
              QList<QUrl>({QUrl(QStringLiteral("https://example.com/?q=1")),
                           QUrl(QStringLiteral("x-apple.systempreferences:com.apple.preference.security?"
                                               "Privacy_Accessibility"))}));
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(HelpersTest, TheReviewAddressIsTheStoresWithASuffix) {
    Helpers::openAppStoreURL();
    Helpers::openAppStoreRateURL();
    const QList<QUrl> &opened = here.platform.workspace.openedUrls;
    ASSERT_EQ(opened.size(), 2);
    EXPECT_THAT(opened.at(0).toString().toStdString(),
                testing::MatchesRegex("macappstore://[a-z.]+/app/id[0-9]+"));
    EXPECT_EQ(opened.at(1).toString(), opened.at(0).toString() + QStringLiteral("?action=write-review"));
}

TEST_F(HelpersTest, WhatIsNoAddressOpensNothing) {
    Helpers::openURLString(QString());
    Helpers::openURLString(QStringLiteral("http://["));
    EXPECT_TRUE(here.platform.workspace.openedUrls.isEmpty());
}

TEST_F(HelpersTest, AFailingFileLeavesTheCallersReferenceUnchanged) {
    TopLevelObjects kept{std::make_shared<QObject>()};
    const QObject *before = kept.front().get();
    QObject owner;
    EXPECT_FALSE(Helpers::loadNibNamed(QStringLiteral("NoSuchFile"), &owner, &kept));
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept.front().get(), before);
    EXPECT_EQ(logged.lines, QStringList{QStringLiteral("Failed to load nib named NoSuchFile")});
    EXPECT_FALSE(Helpers::loadNibNamed(QStringLiteral("NoSuchFile"), nullptr));
}

TEST_F(HelpersTest, AGoodFileGivesItsTopLevelObjects) {
    TopLevelObjects objects;
    EXPECT_TRUE(Helpers::loadNibNamed(QStringLiteral("Two"), nullptr, &objects));
    EXPECT_EQ(objects.size(), 2U);
    EXPECT_TRUE(Helpers::loadNibNamed(QStringLiteral("Two"), nullptr));
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(HelpersTest, MappingToNothingGivesAnEmptyList) {
    const auto none = [](int) -> std::optional<QString> { return std::nullopt; };
    EXPECT_TRUE(Helpers::mapObjectsOf(QList<int>{1, 2, 3}, none).isEmpty());
}

TEST_F(HelpersTest, MappingKeepsTheOrderAndDropsNothings) {
    const auto odd = [](int number) {
        return number % 2 != 0 ? std::optional(QString::number(number)) : std::nullopt;
    };
    EXPECT_EQ(Helpers::mapObjectsOf(std::vector<int>{5, 4, 3, 1}, odd),
              QStringList({QStringLiteral("5"), QStringLiteral("3"), QStringLiteral("1")}));
}

TEST_F(HelpersTest, TheLoginItemIsNamedAfterTheHelper) {
    Helpers::setLoginItemEnabled(true);
    Helpers::setLoginItemEnabled(false);
    EXPECT_THAT(here.platform.loginItem.journal,
                testing::ElementsAre("enable com.vexolith.barquell.launcher",
                                     "disable com.vexolith.barquell.launcher"));
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_F(HelpersTest, ARefusedLoginItemIsOneLine) {
    here.platform.loginItem.refuses = true;
    Helpers::setLoginItemEnabled(true);
    Helpers::setLoginItemEnabled(false);
    EXPECT_EQ(
        logged.lines,
        QStringList({QStringLiteral("SMLoginItemSetEnabled(com.vexolith.barquell.launcher, YES) failed"),
                     QStringLiteral("SMLoginItemSetEnabled(com.vexolith.barquell.launcher, NO) failed")}));
}

} // namespace
} // namespace barquell::test
