// How the defaults live with a store that others change, or that does not take what it is given.

#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "foundation/VirtualRunLoop.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "support/ChangeRecorder.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <QCoreApplication>

#include <memory>

namespace barquell {
namespace {

using Outcome = SettingsStore::Outcome;

const QString kKey = QStringLiteral("key");
const QString kOther = QStringLiteral("other");

/// Takes nothing unless the outcome says so.
class StubbornStore final : public SettingsStore {
public:
    QVariantMap read() override { return inner.read(); }
    Outcome write(const QString &key, const QVariant &value) override {
        ++attempts;
        return outcome == Outcome::Done ? inner.write(key, value) : outcome;
    }
    Outcome remove(const QString &key) override {
        ++attempts;
        return outcome == Outcome::Done ? inner.remove(key) : outcome;
    }
    Outcome removeDomain() override { return outcome == Outcome::Done ? inner.removeDomain() : outcome; }
    void watch(std::function<void()> mayHaveChanged) override {
        ++watches;
        inner.watch(std::move(mayHaveChanged));
    }

    MemorySettingsStore inner;
    Outcome outcome = Outcome::Done;
    int attempts = 0;
    int watches = 0;
};

class UserDefaultsStoreTest : public testing::Test {
protected:
    UserDefaultsStoreTest() {
        RunLoop::setMain(&loop);
        store.inner.write(kKey, 1LL);
        defaults = std::make_unique<UserDefaults>(&store);
        defaults->addObserver(recorder, kKey, {});
        defaults->addObserver(recorder, kOther, {});
    }
    ~UserDefaultsStoreTest() override { RunLoop::setMain(nullptr); }
    Q_DISABLE_COPY_MOVE(UserDefaultsStoreTest)

    void editFromOutside(const QString &key, const QVariant &value) {
        store.inner.editFromOutside(key, value);
        loop.runPending();
    }

    test::LogCapture logged;
    VirtualRunLoop loop;
    StubbornStore store;
    std::unique_ptr<UserDefaults> defaults;
    test::ChangeRecorder recorder;
};

TEST_F(UserDefaultsStoreTest, BeginsWithWhatIsStored) {
    EXPECT_EQ(defaults->integerForKey(kKey), 1);
}

TEST_F(UserDefaultsStoreTest, AnOutsideEditTellsOnlyTheKeyThatDiffers) {
    defaults->setObject(5, kOther);
    loop.runPending();
    recorder.changes.clear();
    editFromOutside(kKey, 2LL);
    ASSERT_EQ(recorder.changes.size(), 1);
    EXPECT_EQ(recorder.changes.first().first, kKey);
    EXPECT_TRUE(sameValue(recorder.changes.first().second, 2LL));
}

TEST_F(UserDefaultsStoreTest, AnEqualOutsideEditTellsNothing) {
    editFromOutside(kKey, 1LL);
    EXPECT_TRUE(recorder.changes.isEmpty());
}

TEST_F(UserDefaultsStoreTest, AnOutsideEditThatChangesTheTypeIsTold) {
    editFromOutside(kKey, true);
    editFromOutside(kKey, 1.0);
    editFromOutside(kKey, QStringLiteral("1"));
    ASSERT_EQ(recorder.changes.size(), 3);
    EXPECT_TRUE(sameValue(recorder.changes.at(0).second, true));
    EXPECT_TRUE(sameValue(recorder.changes.at(1).second, 1.0));
    EXPECT_TRUE(sameValue(recorder.changes.at(2).second, QStringLiteral("1")));
}

TEST_F(UserDefaultsStoreTest, AnOutsideRemovalTellsTheRegisteredDefaultOrTheNullObject) {
    defaults->registerDefaults({{kKey, 9}});
    editFromOutside(kKey, QVariant());
    editFromOutside(kOther, 1LL);
    editFromOutside(kOther, QVariant());
    ASSERT_EQ(recorder.changes.size(), 3);
    EXPECT_TRUE(sameValue(recorder.changes.at(0).second, 9LL));
    EXPECT_TRUE(isNullObject(recorder.changes.at(2).second));
}

TEST_F(UserDefaultsStoreTest, AnOutsideEditToTheRegisteredDefaultTellsNothing) {
    defaults->registerDefaults({{kOther, 9}});
    editFromOutside(kOther, 9LL);
    EXPECT_TRUE(recorder.changes.isEmpty());
    EXPECT_TRUE(defaults->persistentDomain().contains(kOther));
}

TEST_F(UserDefaultsStoreTest, OurOwnWriteSeenThroughTheStoreIsNotToldAgain) {
    defaults->setObject(2, kKey);
    defaults->removeObjectForKey(kKey);
    recorder.changes.clear();
    loop.runPending();
    EXPECT_TRUE(recorder.changes.isEmpty());
}

TEST_F(UserDefaultsStoreTest, AFailedWriteCountsInMemoryAndIsNotTriedAgain) {
    store.outcome = Outcome::Failed;
    defaults->setObject(2, kKey);
    EXPECT_EQ(defaults->integerForKey(kKey), 2);
    EXPECT_EQ(recorder.changes.size(), 1);
    EXPECT_EQ(defaults->synchronize(), Outcome::Failed);
    loop.advanceBy(std::chrono::minutes(1));
    EXPECT_EQ(store.attempts, 1);
    editFromOutside(kOther, 1LL); // makes the defaults read the store, which holds the old value
    EXPECT_EQ(defaults->integerForKey(kKey), 2);
}

TEST_F(UserDefaultsStoreTest, ALaterWriteOfTheKeyHealsAFailedOne) {
    store.outcome = Outcome::Failed;
    defaults->setObject(2, kKey);
    store.outcome = Outcome::Done;
    defaults->setObject(3, kKey);
    EXPECT_EQ(defaults->synchronize(), Outcome::Done);
    editFromOutside(kKey, 4LL);
    EXPECT_EQ(defaults->integerForKey(kKey), 4);
}

TEST_F(UserDefaultsStoreTest, AWriteThatFoundTheStoreBusyIsTriedUntilItIsTaken) {
    store.outcome = Outcome::TryLater;
    defaults->setObject(2, kKey);
    defaults->setObject(QStringLiteral("b"), kOther);
    EXPECT_EQ(defaults->synchronize(), Outcome::TryLater);
    loop.advanceBy(std::chrono::seconds(10));
    EXPECT_EQ(defaults->integerForKey(kKey), 2);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 1LL}}));
    store.outcome = Outcome::Done;
    loop.advanceBy(std::chrono::seconds(2));
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 2LL}, {kOther, QStringLiteral("b")}}));
    EXPECT_EQ(recorder.changes.size(), 2); // the writes; not the retries, and not their echo
    EXPECT_EQ(defaults->synchronize(), Outcome::Done);
}

TEST_F(UserDefaultsStoreTest, ARemovalThatFoundTheStoreBusyIsTriedAgain) {
    store.outcome = Outcome::TryLater;
    defaults->removePersistentDomain();
    EXPECT_FALSE(defaults->objectForKey(kKey).isValid());
    editFromOutside(kOther, 1LL);
    EXPECT_FALSE(defaults->objectForKey(kKey).isValid());
    store.outcome = Outcome::Done;
    loop.advanceBy(std::chrono::seconds(2));
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kOther, 1LL}}));
}

TEST_F(UserDefaultsStoreTest, WhatIsStillUnsavedAtTheEndIsSaid) {
    store.outcome = Outcome::TryLater;
    defaults->setObject(2, kKey);
    EXPECT_TRUE(logged.lines.isEmpty());
    QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    QCoreApplication::exec();
    EXPECT_EQ(logged.lines.size(), 1);
}

TEST_F(UserDefaultsStoreTest, WhatTheEndStillSavesIsNotSaid) {
    store.outcome = Outcome::TryLater;
    defaults->setObject(2, kKey);
    store.outcome = Outcome::Done;
    QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);
    QCoreApplication::exec();
    EXPECT_TRUE(logged.lines.isEmpty());
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 2LL}}));
}

TEST_F(UserDefaultsStoreTest, DefaultsThatDoNotFollowLeaveTheStoreUnwatched) {
    StubbornStore unwatched;
    UserDefaults once(&unwatched, UserDefaults::Following::No);
    unwatched.inner.editFromOutside(kKey, 1LL);
    loop.runPending();
    EXPECT_EQ(unwatched.watches, 0);
    EXPECT_FALSE(once.objectForKey(kKey).isValid());
    EXPECT_EQ(store.watches, 1); // as the others do
}

TEST_F(UserDefaultsStoreTest, DefaultsThatAreGoneAreNotCalled) {
    store.outcome = Outcome::TryLater;
    defaults->setObject(2, kKey); // schedules a retry
    const int attempts = store.attempts;
    defaults.reset();
    editFromOutside(kKey, 3LL);
    loop.advanceBy(std::chrono::seconds(5));
    EXPECT_EQ(store.attempts, attempts);
}

} // namespace
} // namespace barquell
