#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "platform/Platform.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "support/ChangeRecorder.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell {
namespace {

const QString kKey = QStringLiteral("key");
const QString kOther = QStringLiteral("other");

class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest() {
        defaults.addObserver(recorder, kKey, {});
        defaults.addObserver(recorder, kOther, {});
    }

    bool told(qsizetype index, const QString &key, const QVariant &value) const {
        return index < recorder.changes.size() && recorder.changes.at(index).first == key &&
               (isNullObject(value) ? isNullObject(recorder.changes.at(index).second)
                                    : sameValue(recorder.changes.at(index).second, value));
    }

    test::LogCapture logged;
    MemorySettingsStore store;
    UserDefaults defaults{&store};
    test::ChangeRecorder recorder;
};

TEST_F(UserDefaultsTest, AStoredValueLiesOverTheRegisteredOne) {
    EXPECT_FALSE(defaults.objectForKey(kKey).isValid());
    defaults.registerDefaults({{kKey, 1}});
    EXPECT_TRUE(sameValue(defaults.objectForKey(kKey), 1LL));
    defaults.setObject(2, kKey);
    EXPECT_TRUE(sameValue(defaults.objectForKey(kKey), 2LL));
    EXPECT_TRUE(sameValue(defaults.persistentDomain(), QVariantMap{{kKey, 2LL}}));
}

TEST_F(UserDefaultsTest, RegistrationsMergeAndTellNobody) {
    defaults.registerDefaults({{kKey, 1}, {kOther, true}});
    defaults.registerDefaults({{kKey, 2}});
    EXPECT_EQ(defaults.integerForKey(kKey), 2);
    EXPECT_TRUE(defaults.boolForKey(kOther));
    EXPECT_TRUE(recorder.changes.isEmpty());
    EXPECT_TRUE(store.read().isEmpty());
}

TEST_F(UserDefaultsTest, ARegisteredValueThatCannotBeStoredIsSaidAndLeftOut) {
    defaults.registerDefaults({{kKey, nullObject()}, {kOther, 1}});
    EXPECT_FALSE(defaults.objectForKey(kKey).isValid());
    EXPECT_EQ(defaults.integerForKey(kOther), 1);
    EXPECT_EQ(logged.lines.size(), 1);
}

TEST_F(UserDefaultsTest, AWriteIsTold) {
    defaults.setObject(QStringLiteral("a"), kKey);
    ASSERT_EQ(recorder.changes.size(), 1);
    EXPECT_TRUE(told(0, kKey, QStringLiteral("a")));
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, QStringLiteral("a")}}));
}

TEST_F(UserDefaultsTest, AnEqualWriteIsToldAgain) {
    defaults.setObject(true, kKey);
    defaults.setObject(true, kKey);
    ASSERT_EQ(recorder.changes.size(), 2);
    EXPECT_TRUE(told(1, kKey, true));
}

TEST_F(UserDefaultsTest, AKeyPathIsAKey) {
    const QString dotted = QStringLiteral("values.key");
    defaults.addObserver(recorder, dotted, {});
    Observable &observable = defaults;
    observable.setValue(5, dotted);
    EXPECT_TRUE(sameValue(observable.valueForKeyPath(dotted), 5LL));
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{dotted, 5LL}}));
    ASSERT_EQ(recorder.changes.size(), 1);
    EXPECT_TRUE(told(0, dotted, 5LL));
    observable.setValue(QVariant(), dotted);
    EXPECT_TRUE(store.read().isEmpty());
}

TEST_F(UserDefaultsTest, ARemovalTellsTheRegisteredDefault) {
    defaults.registerDefaults({{kKey, 7}});
    defaults.setObject(8, kKey);
    defaults.removeObjectForKey(kKey);
    ASSERT_EQ(recorder.changes.size(), 2);
    EXPECT_TRUE(told(1, kKey, 7LL));
    EXPECT_TRUE(store.read().isEmpty());
}

TEST_F(UserDefaultsTest, ARemovalWithoutARegisteredDefaultTellsTheNullObject) {
    defaults.setObject(8, kKey);
    defaults.setObject(QVariant(), kKey);
    ASSERT_EQ(recorder.changes.size(), 2);
    EXPECT_TRUE(told(1, kKey, nullObject()));
}

TEST_F(UserDefaultsTest, ARemovalOfWhatIsNotStoredTellsNothing) {
    defaults.registerDefaults({{kKey, 7}});
    defaults.removeObjectForKey(kKey);
    EXPECT_TRUE(recorder.changes.isEmpty());
}

TEST_F(UserDefaultsTest, RemovingTheDomainTellsEveryStoredKey) {
    defaults.registerDefaults({{kKey, 7}});
    defaults.setObject(1, kKey);
    defaults.setObject(2, kOther);
    recorder.changes.clear();
    defaults.removePersistentDomain();
    ASSERT_EQ(recorder.changes.size(), 2);
    EXPECT_TRUE(told(0, kKey, 7LL));
    EXPECT_TRUE(told(1, kOther, nullObject()));
    EXPECT_TRUE(store.read().isEmpty());
}

TEST_F(UserDefaultsTest, AValueThatCannotBeStoredChangesNothingButTheLog) {
    defaults.setObject(1, kKey);
    recorder.changes.clear();
    defaults.setObject(nullObject(), kKey);
    defaults.setObject(QVariantList{QVariant()}, kKey);
    EXPECT_TRUE(sameValue(defaults.objectForKey(kKey), 1LL));
    EXPECT_TRUE(recorder.changes.isEmpty());
    EXPECT_EQ(logged.lines.size(), 2);
}

TEST_F(UserDefaultsTest, AnEmptyListIsNotAbsence) {
    defaults.registerDefaults({{kKey, QVariantList{1}}});
    defaults.setObject(QVariantList(), kKey);
    EXPECT_TRUE(sameValue(defaults.objectForKey(kKey), QVariantList()));
}

TEST_F(UserDefaultsTest, TextAnswersAsBoolAndInteger) {
    defaults.setObject(QStringLiteral("12abc"), kKey);
    EXPECT_TRUE(defaults.boolForKey(kKey));
    EXPECT_EQ(defaults.integerForKey(kKey), 12);
    EXPECT_FALSE(defaults.boolForKey(kOther));
    EXPECT_EQ(defaults.integerForKey(kOther), 0);
}

TEST(UserDefaultsWithoutAStore, LiveInMemory) {
    UserDefaults defaults(nullptr);
    defaults.setObject(1, kKey);
    EXPECT_EQ(defaults.integerForKey(kKey), 1);
    defaults.removePersistentDomain();
    EXPECT_FALSE(defaults.objectForKey(kKey).isValid());
    EXPECT_EQ(defaults.synchronize(), SettingsStore::Outcome::Done);
}

TEST(UserDefaultsStandard, LiesOnThePlatformsStore) {
    static MemorySettingsStore store; // the standard defaults live as long as the process
    store.write(kKey, 3LL);
    Platform platform;
    platform.settingsStore = &store;
    installPlatform(platform);
    EXPECT_EQ(UserDefaults::standard().integerForKey(kKey), 3);
    UserDefaults::standard().setObject(4, kKey);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 4LL}}));
    EXPECT_EQ(&UserDefaults::standard(), &UserDefaults::standard());
}

} // namespace
} // namespace barquell
