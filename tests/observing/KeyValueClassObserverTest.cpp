#include "Recorder.h"

#include "foundation/UserDefaults.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QString key() {
    return QStringLiteral("Volume");
}

Call all(const QVariant &value, bool init) {
    return {QStringLiteral("observeAll"), value, init, key()};
}

/// Class objects live as long as the process, so each test has its own.
ClassRecorder &cls() {
    static ClassRecorder recorder;
    return recorder;
}

} // namespace

TEST(KeyValueClassObserverTest, AClassIsToldTheCurrentValueAndItsChanges) {
    place();
    UserDefaults::standard().setObject(QStringLiteral("a"), key());
    EXPECT_TRUE(cls().subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", true));
    UserDefaults::standard().setObject(QStringLiteral("b"), key());
    UserDefaults::standard().removeObjectForKey(key());
    EXPECT_THAT(cls().calls,
                ElementsAre(all(QStringLiteral("a"), true), all(QStringLiteral("b"), false), all({}, false)));
}

TEST(KeyValueClassObserverTest, ASecondSubscriptionOfAClassIsCalledAsWell) {
    static Observable object;
    EXPECT_TRUE(cls().subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false));
    EXPECT_TRUE(cls().subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false));
    object.setValue(1, key());
    EXPECT_THAT(cls().calls, ElementsAre(all(1, false), all(1, false)));
}

TEST(KeyValueClassObserverTest, AClassIsRefusedWhereAnInstanceWouldBe) {
    const LogCapture log;
    static Observable object;
    EXPECT_FALSE(cls().subscribeToKeyPath(key(), nullptr, "observeAll:init:keyPath:", true));
    EXPECT_FALSE(cls().subscribeToKeyPath(key(), &object, {}, true));
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_FALSE(cls().subscribeToKeyPath(key(), &object, "observeWeather", true));
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("Receiver does not respond to selector: observeWeather")));
}

TEST(KeyValueClassObserverTest, ANullObjectIsNilInAChangeButStaysItselfAtTheInitialCall) {
    static Observable object;
    object.setValue(nullObject(), key());
    cls().subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", true);
    object.setValue(nullObject(), key());
    ASSERT_EQ(cls().calls.size(), 2);
    EXPECT_TRUE(isNullObject(cls().calls.at(0).value));
    EXPECT_FALSE(cls().calls.at(1).value.isValid());
}

TEST(KeyValueClassObserverTest, ARegistrationWithoutAMethodIsIgnored) {
    static Observable object;
    object.addObserver(cls(), key(), std::monostate{});
    object.setValue(1, key());
    EXPECT_THAT(cls().calls, IsEmpty());
}

} // namespace barquell::test
