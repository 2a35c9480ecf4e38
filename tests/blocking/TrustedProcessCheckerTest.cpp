#include "TrustRecorder.h"

#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

namespace barquell::test {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TrustedProcessCheckerTest : public testing::Test {
protected:
    TrustedProcessCheckerTest() {
        trust().trusted = false;
        TrustedProcessChecker::isTrusted();
    }

    static ScriptedTrust &trust() { return place().platform.trust; }

    /// Lets an hour pass, in which a poll would see anything.
    static void letPollsRun() { place().loop.advanceBy(1h); }

    static void postAccessibilityChange() {
        place().platform.notifications.post(QStringLiteral("com.apple.accessibility.api"));
    }

    LogCapture log;
    TrustRecorder observer;
    TrustRecorder other;
};

QString describe(const QObject &object) {
    return QStringLiteral("<barquell::test::TrustRecorder: 0x%1>")
        .arg(reinterpret_cast<quintptr>(&object), 0, 16);
}

} // namespace

TEST_F(TrustedProcessCheckerTest, TheFirstUseAsksTheSystem) {
    EXPECT_FALSE(TrustedProcessChecker::isTrusted());
    trust().trusted = true;
    EXPECT_FALSE(TrustedProcessChecker::isTrusted()); // cached
    EXPECT_TRUE(TrustedProcessChecker::checkIsTrusted());
    EXPECT_TRUE(TrustedProcessChecker::isTrusted());
}

TEST_F(TrustedProcessCheckerTest, AnObserverAddedWithInitIsToldWhatHolds) {
    TrustedProcessChecker::addObserver(&observer, true);
    EXPECT_THAT(observer.told, ElementsAre(false));
}

TEST_F(TrustedProcessCheckerTest, AddingAnObserverWhenTrustHasChangedTellsEveryoneOnceAndStartsNoTimer) {
    trust().trusted = true;
    TrustedProcessChecker::addObserver(&observer, true);
    EXPECT_THAT(observer.told, ElementsAre(true));
    trust().trusted = false;
    TrustedProcessChecker::addObserver(&other, true);
    EXPECT_THAT(observer.told, ElementsAre(true, false));
    EXPECT_THAT(other.told, ElementsAre(false));
    trust().trusted = true;
    letPollsRun();
    EXPECT_FALSE(TrustedProcessChecker::isTrusted());
}

TEST_F(TrustedProcessCheckerTest, AddingWithoutInitCallsNothingButStartsTheTimer) {
    TrustedProcessChecker::addObserver(&observer, false);
    EXPECT_THAT(observer.told, IsEmpty());
    trust().trusted = true;
    place().loop.advanceBy(29s);
    EXPECT_THAT(observer.told, IsEmpty());
    place().loop.advanceBy(1s);
    EXPECT_THAT(observer.told, ElementsAre(true));
}

TEST_F(TrustedProcessCheckerTest, ThePollGoesOnEveryThirtySeconds) {
    TrustedProcessChecker::addObserver(&observer, false);
    for (const bool trusted : {true, false, true}) {
        trust().trusted = trusted;
        place().loop.advanceBy(30s);
    }
    EXPECT_THAT(observer.told, ElementsAre(true, false, true));
}

TEST_F(TrustedProcessCheckerTest, AnObserverAddedTwiceIsToldOnce) {
    TrustedProcessChecker::addObserver(&observer, false);
    TrustedProcessChecker::addObserver(&observer, false);
    trust().trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_THAT(observer.told, ElementsAre(true));
}

TEST_F(TrustedProcessCheckerTest, RemovingTheLastObserverStopsTheTimer) {
    TrustedProcessChecker::addObserver(&observer, false);
    TrustedProcessChecker::removeObserver(&observer);
    trust().trusted = true;
    letPollsRun();
    EXPECT_FALSE(TrustedProcessChecker::isTrusted());
}

TEST_F(TrustedProcessCheckerTest, RemovingOneOfTwoObserversKeepsTheTimer) {
    TrustedProcessChecker::addObserver(&observer, false);
    TrustedProcessChecker::addObserver(&other, false);
    TrustedProcessChecker::removeObserver(&observer);
    trust().trusted = true;
    letPollsRun();
    EXPECT_THAT(observer.told, IsEmpty());
    EXPECT_THAT(other.told, ElementsAre(true));
}

TEST_F(TrustedProcessCheckerTest, AnObserverThatVanishesLeavesTheTimerRunning) {
    auto shortLived = std::make_unique<TrustRecorder>();
    TrustedProcessChecker::addObserver(shortLived.get(), false);
    shortLived.reset();
    trust().trusted = true;
    letPollsRun();
    EXPECT_TRUE(TrustedProcessChecker::isTrusted());
}

TEST_F(TrustedProcessCheckerTest, RemovingTheLastLivingObserverStopsTheTimer) {
    auto shortLived = std::make_unique<TrustRecorder>();
    TrustedProcessChecker::addObserver(shortLived.get(), false);
    TrustedProcessChecker::addObserver(&observer, false);
    shortLived.reset();
    TrustedProcessChecker::removeObserver(&observer);
    trust().trusted = true;
    letPollsRun();
    EXPECT_FALSE(TrustedProcessChecker::isTrusted());
}

TEST_F(TrustedProcessCheckerTest, AnObserverThatDestroysItselfAndThrowsIsStillNamed) {
    auto *shortLived = new TrustRecorder; // NOLINT(cppcoreguidelines-owning-memory): ends itself
    const QString name = describe(*shortLived);
    shortLived->then = [shortLived] {
        delete shortLived; // NOLINT(cppcoreguidelines-owning-memory)
        throw std::runtime_error("gone");
    };
    TrustedProcessChecker::addObserver(shortLived, false);
    trust().trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("Exception while notifying observer %1: gone").arg(name)));
}

TEST_F(TrustedProcessCheckerTest, AnObjectThatDoesNotRespondIsNeverAdded) {
    QObject mute;
    TrustedProcessChecker::addObserver(&mute, true);
    TrustedProcessChecker::addObserver(nullptr, true);
    trust().trusted = true;
    letPollsRun(); // no timer was started for it either
    EXPECT_FALSE(TrustedProcessChecker::isTrusted());
}

TEST_F(TrustedProcessCheckerTest, ADelayedNoticeArrivesFromTheRunLoop) {
    TrustedProcessChecker::addObserver(&observer, false);
    trust().trusted = true;
    EXPECT_TRUE(TrustedProcessChecker::checkIsTrustedDelayObservers());
    EXPECT_THAT(observer.told, IsEmpty());
    place().loop.runPending();
    EXPECT_THAT(observer.told, ElementsAre(true));
}

TEST_F(TrustedProcessCheckerTest, ADelayedNoticeWhoseStateFlippedBackIsDropped) {
    TrustedProcessChecker::addObserver(&observer, false);
    trust().trusted = true;
    TrustedProcessChecker::checkIsTrustedDelayObservers();
    trust().trusted = false;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_THAT(observer.told, ElementsAre(false));
    place().loop.runPending();
    EXPECT_THAT(observer.told, ElementsAre(false));
}

TEST_F(TrustedProcessCheckerTest,
       TheAccessibilityNotificationIsLoggedAndFollowedByACheckATenthOfASecondLater) {
    TrustedProcessChecker::addObserver(&observer, false);
    trust().trusted = true;
    postAccessibilityChange();
    place().loop.advanceBy(99ms);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Got com.apple.accessibility.api")));
    EXPECT_THAT(observer.told, IsEmpty());
    place().loop.advanceBy(1ms);
    EXPECT_THAT(observer.told, ElementsAre(true));
}

TEST_F(TrustedProcessCheckerTest, AfterATimeoutATrustedProcessMakesEveryoneLookAgain) {
    trust().trusted = true;
    EXPECT_TRUE(TrustedProcessChecker::checkIsTrustedAfterTimeout());
    place().loop.runPending();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Got com.apple.accessibility.api")));
}

TEST_F(TrustedProcessCheckerTest, AfterATimeoutAnUntrustedProcessTellsItsObserversLater) {
    trust().trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    TrustedProcessChecker::addObserver(&observer, false);
    trust().trusted = false;
    EXPECT_FALSE(TrustedProcessChecker::checkIsTrustedAfterTimeout());
    EXPECT_THAT(observer.told, IsEmpty());
    place().loop.runPending();
    EXPECT_THAT(observer.told, ElementsAre(false));
    EXPECT_THAT(log.lines, IsEmpty()); // nothing was posted
}

TEST_F(TrustedProcessCheckerTest, AnExceptionOfAnObserverIsNamedAndTheNextOneIsTold) {
    TrustedProcessChecker::addObserver(&observer, false);
    TrustedProcessChecker::addObserver(&other, false);
    observer.then = [] { throw std::runtime_error("no room"); };
    trust().trusted = true;
    EXPECT_TRUE(TrustedProcessChecker::checkIsTrusted());
    EXPECT_THAT(other.told, ElementsAre(true));
    EXPECT_THAT(
        log.lines,
        ElementsAre(
            QStringLiteral("Exception while notifying observer %1: no room").arg(describe(observer))));
}

TEST_F(TrustedProcessCheckerTest, AnythingElseThrownIsUnknownAndTheNextOneIsTold) {
    TrustedProcessChecker::addObserver(&observer, false);
    TrustedProcessChecker::addObserver(&other, false);
    observer.then = [] { throw 42; };
    trust().trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    EXPECT_THAT(other.told, ElementsAre(true));
    EXPECT_THAT(
        log.lines,
        ElementsAre(QStringLiteral("Unknown exception while notifying observer %1").arg(describe(observer))));
}

TEST_F(TrustedProcessCheckerTest, ChangingTheTableWhileObserversAreToldIsAnError) {
    TrustedProcessChecker::addObserver(&observer, false);
    observer.then = [this] { TrustedProcessChecker::addObserver(&other, false); };
    trust().trusted = true;
    EXPECT_THROW(TrustedProcessChecker::checkIsTrusted(), std::logic_error);
}

} // namespace barquell::test
