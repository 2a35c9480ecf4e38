#include "Recorder.h"

#include "foundation/UserDefaults.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

namespace barquell::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QString key() {
    return QStringLiteral("Volume");
}

Call all(const QVariant &value, bool init, const QString &keyPath = key()) {
    return {QStringLiteral("observeAll"), value, init, keyPath};
}

class KeyValueObserverTest : public testing::Test {
protected:
    KeyValueObserverTest() { place(); }

    Observable object;
    Recorder observer;
    LogCapture log;
};

} // namespace

TEST_F(KeyValueObserverTest, InitCallsAtOnceWithTheCurrentValueAndLaterChangesWithTheNewOne) {
    object.setValue(3, key());
    EXPECT_TRUE(observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", true));
    EXPECT_THAT(observer.calls, ElementsAre(all(3, true)));
    object.setValue(4, key());
    EXPECT_THAT(observer.calls, ElementsAre(all(3, true), all(4, false)));
}

TEST_F(KeyValueObserverTest, WithoutInitNothingIsCalledBeforeAChange) {
    EXPECT_TRUE(observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false));
    EXPECT_THAT(observer.calls, IsEmpty());
}

TEST_F(KeyValueObserverTest, AWriteOfAnEqualValueIsAChange) {
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    object.setValue(3, key());
    object.setValue(3, key());
    EXPECT_THAT(observer.calls, ElementsAre(all(3, false), all(3, false)));
}

TEST_F(KeyValueObserverTest, AnotherKeyPathIsNotHeardOf) {
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    object.setValue(3, QStringLiteral("Balance"));
    EXPECT_THAT(observer.calls, IsEmpty());
}

TEST_F(KeyValueObserverTest, MethodsMayLeaveTrailingArgumentsAway) {
    EXPECT_TRUE(observer.subscribeToKeyPath(QStringLiteral("a"), &object, "observeNothing", false));
    EXPECT_TRUE(observer.subscribeToKeyPath(QStringLiteral("b"), &object, "observeValue:", false));
    EXPECT_TRUE(observer.subscribeToKeyPath(QStringLiteral("c"), &object, "observeValue:init:", true));
    object.setValue(1, QStringLiteral("a"));
    object.setValue(2, QStringLiteral("b"));
    EXPECT_THAT(observer.calls, ElementsAre(Call{QStringLiteral("observeValue:init"), {}, true, {}},
                                            Call{QStringLiteral("observeNothing"), {}, false, {}},
                                            Call{QStringLiteral("observeValue"), 2, false, {}}));
}

TEST_F(KeyValueObserverTest, ASecondSubscriptionToTheSameKeyPathTakesThePlaceOfTheFirst) {
    observer.subscribeToKeyPath(key(), &object, "observeValue:", false);
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    object.setValue(5, key());
    EXPECT_THAT(observer.calls, ElementsAre(all(5, false)));
}

TEST_F(KeyValueObserverTest, TheSameKeyPathOfAnotherObjectIsASubscriptionOfItsOwn) {
    Observable other;
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    observer.subscribeToKeyPath(key(), &other, "observeValue:", false);
    object.setValue(1, key());
    other.setValue(2, key());
    EXPECT_THAT(observer.calls,
                ElementsAre(all(1, false), Call{QStringLiteral("observeValue"), 2, false, {}}));
}

TEST_F(KeyValueObserverTest, AMissingObjectOrSelectorIsRefusedWithoutAWord) {
    EXPECT_FALSE(observer.subscribeToKeyPath(key(), nullptr, "observeValue:", true));
    EXPECT_FALSE(observer.subscribeToKeyPath(key(), &object, {}, true));
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_THAT(observer.calls, IsEmpty());
}

TEST_F(KeyValueObserverTest, AMethodThatTheReceiverLacksIsRefusedInOneLine) {
    EXPECT_FALSE(observer.subscribeToKeyPath(key(), &object, "observeWeather:", true));
    EXPECT_THAT(log.lines,
                ElementsAre(QStringLiteral("Receiver does not respond to selector: observeWeather:")));
    object.setValue(1, key());
    EXPECT_THAT(observer.calls, IsEmpty());
}

TEST_F(KeyValueObserverTest, AMethodWithOtherArgumentsIsNotTheOneThatWasNamed) {
    EXPECT_FALSE(observer.subscribeToKeyPath(key(), &object, "observeNothing:", true));
    EXPECT_FALSE(observer.subscribeToKeyPath(key(), &object, "observeWrongly:", true));
    EXPECT_EQ(log.lines.size(), 2);
}

TEST_F(KeyValueObserverTest, ARefusedSubscriptionLeavesTheEarlierOneAlone) {
    observer.subscribeToKeyPath(key(), &object, "observeValue:", false);
    EXPECT_FALSE(observer.subscribeToKeyPath(key(), &object, "observeWeather:", false));
    object.setValue(1, key());
    EXPECT_EQ(observer.calls.size(), 1);
}

TEST_F(KeyValueObserverTest, ANullObjectIsNilInAChangeButStaysItselfAtTheInitialCall) {
    object.setValue(nullObject(), key());
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", true);
    object.setValue(nullObject(), key());
    ASSERT_EQ(observer.calls.size(), 2);
    EXPECT_TRUE(isNullObject(observer.calls.at(0).value));
    EXPECT_FALSE(observer.calls.at(1).value.isValid());
}

TEST_F(KeyValueObserverTest, ARemovedUserDefaultArrivesAsNil) {
    UserDefaults &defaults = UserDefaults::standard();
    defaults.setObject(7, key());
    observer.subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", false);
    defaults.removeObjectForKey(key());
    EXPECT_THAT(observer.calls, ElementsAre(all({}, false)));
}

TEST_F(KeyValueObserverTest, ARemovedUserDefaultArrivesAsTheRegisteredOneBeneath) {
    UserDefaults &defaults = UserDefaults::standard();
    defaults.registerDefaults({{key(), QStringLiteral("loud")}});
    defaults.setObject(QStringLiteral("quiet"), key());
    observer.subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", true);
    defaults.removeObjectForKey(key());
    EXPECT_THAT(observer.calls,
                ElementsAre(all(QStringLiteral("quiet"), true), all(QStringLiteral("loud"), false)));
}

TEST_F(KeyValueObserverTest, ASilentWriteReachesNoObserverOfTheUserDefaultsButADirectOneDoes) {
    Recorder other;
    ClassRecorder cls;
    observer.subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", false);
    other.subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", false);
    ASSERT_TRUE(cls.subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", false));
    observer.setUserDefaultsValue(QStringLiteral("a"), key());
    EXPECT_EQ(UserDefaults::standard().objectForKey(key()), QStringLiteral("a"));
    EXPECT_THAT(observer.calls, IsEmpty());
    EXPECT_THAT(other.calls, IsEmpty());
    EXPECT_THAT(cls.calls, IsEmpty());

    const QList<Call> heard{all(QStringLiteral("b"), false)};
    UserDefaults::standard().setObject(QStringLiteral("b"), key());
    EXPECT_EQ(observer.calls, heard);
    EXPECT_EQ(other.calls, heard);
    EXPECT_EQ(cls.calls, heard);
    UserDefaults::standard().removeObserver(cls, key());
}

TEST_F(KeyValueObserverTest, ASilentWriteToOneObjectLeavesTheOthersAudible) {
    Observable other;
    class Chained : public Observable {
    public:
        explicit Chained(Observable &next) : _next(next) {}
        void setValue(const QVariant &value, const QString &keyPath) override {
            Observable::setValue(value, keyPath);
            _next.setValue(value, keyPath);
        }

    private:
        Observable &_next;
    };
    Chained chained(other);
    observer.subscribeToKeyPath(key(), &chained, "observeValue:", false);
    observer.subscribeToKeyPath(key(), &other, "observeAll:init:keyPath:", false);
    observer.setValue(1, key(), &chained);
    EXPECT_THAT(observer.calls, ElementsAre(all(1, false)));
}

TEST_F(KeyValueObserverTest, AWriteToNoObjectDoesNothing) {
    observer.subscribeToUserDefaultsKeyPath(key(), "observeValue:", false);
    observer.setValue(1, key(), nullptr);
    EXPECT_THAT(observer.calls, IsEmpty());
}

TEST_F(KeyValueObserverTest, UnsubscribingLeavesOtherConnectionsToTheObjectAlone) {
    int destroyed = 0;
    auto shortLived = std::make_unique<Observable>();
    QObject::connect(shortLived.get(), &QObject::destroyed, &observer, [&] { ++destroyed; });
    observer.subscribeToKeyPath(key(), shortLived.get(), "observeValue:", false);
    observer.unsubscribeFromObject(shortLived.get());
    shortLived.reset();
    EXPECT_EQ(destroyed, 1);
}

TEST_F(KeyValueObserverTest, NestedSilentWritesEndWithTheOutermost) {
    class Nested : public Observable {
    public:
        Nested(KeyValueObserver &writer, Observable &inner) : _writer(writer), _inner(inner) {}
        void setValue(const QVariant &value, const QString &keyPath) override {
            _writer.setValue(value, keyPath, &_inner);
            Observable::setValue(value, keyPath); // still silent
        }

    private:
        KeyValueObserver &_writer;
        Observable &_inner;
    };
    Observable inner;
    Nested outer(observer, inner);
    observer.subscribeToKeyPath(key(), &outer, "observeValue:", false);
    observer.subscribeToKeyPath(key(), &inner, "observeValue:", false);
    observer.setValue(1, key(), &outer);
    EXPECT_THAT(observer.calls, IsEmpty());
    inner.setValue(2, key());
    EXPECT_EQ(observer.calls.size(), 1);
}

TEST_F(KeyValueObserverTest, AnExceptionOfTheSetterPassesAndTheSilenceEnds) {
    FailingObject failing;
    observer.subscribeToKeyPath(key(), &failing, "observeAll:init:keyPath:", false);
    EXPECT_THROW(observer.setValue(1, key(), &failing), std::runtime_error);
    EXPECT_THAT(observer.calls, IsEmpty());
    EXPECT_THROW(failing.setValue(2, key()), std::runtime_error);
    EXPECT_THAT(observer.calls, ElementsAre(all(2, false)));
}

TEST_F(KeyValueObserverTest, UnsubscribingEndsTheOneSubscription) {
    const QString other = QStringLiteral("Balance");
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    observer.subscribeToKeyPath(other, &object, "observeAll:init:keyPath:", false);
    observer.unsubscribeFromKeyPath(key(), &object);
    object.setValue(1, key());
    object.setValue(2, other);
    EXPECT_THAT(observer.calls, ElementsAre(all(2, false, other)));
}

TEST_F(KeyValueObserverTest, UnsubscribingFromAKeyPathNeverSubscribedToDoesNothing) {
    observer.unsubscribeFromKeyPath(key(), &object);
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    observer.unsubscribeFromKeyPath(QStringLiteral("Balance"), &object);
    Observable stranger;
    observer.unsubscribeFromKeyPath(key(), &stranger);
    object.setValue(1, key());
    EXPECT_EQ(observer.calls.size(), 1);
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(KeyValueObserverTest, UnsubscribingFromAnObjectEndsAllThatItSends) {
    Observable other;
    observer.subscribeToKeyPath(key(), &object, "observeValue:", false);
    observer.subscribeToKeyPath(QStringLiteral("Balance"), &object, "observeValue:", false);
    observer.subscribeToKeyPath(key(), &other, "observeAll:init:keyPath:", false);
    observer.unsubscribeFromObject(&object);
    object.setValue(1, key());
    object.setValue(1, QStringLiteral("Balance"));
    other.setValue(2, key());
    EXPECT_THAT(observer.calls, ElementsAre(all(2, false)));
}

TEST_F(KeyValueObserverTest, UserDefaultsAreUnsubscribedByKeyOrAsAWhole) {
    const QString other = QStringLiteral("Balance");
    UserDefaults &defaults = UserDefaults::standard();
    observer.subscribeToUserDefaultsKeyPath(key(), "observeAll:init:keyPath:", false);
    observer.subscribeToUserDefaultsKeyPath(other, "observeAll:init:keyPath:", false);
    observer.unsubscribeFromUserDefaultsKeyPath(key());
    defaults.setObject(true, key());
    defaults.setObject(true, other);
    EXPECT_THAT(observer.calls, ElementsAre(all(true, false, other)));
    observer.unsubscribeFromUserDefaults();
    defaults.setObject(false, other);
    EXPECT_EQ(observer.calls.size(), 1);
}

TEST_F(KeyValueObserverTest, AfterUnsubscribingFromEverythingANewSubscriptionWorks) {
    observer.subscribeToKeyPath(key(), &object, "observeValue:", false);
    observer.unsubscribeFromAllObjects();
    object.setValue(1, key());
    EXPECT_THAT(observer.calls, IsEmpty());
    EXPECT_TRUE(observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false));
    object.setValue(2, key());
    EXPECT_THAT(observer.calls, ElementsAre(all(2, false)));
}

TEST_F(KeyValueObserverTest, AnObserverThatGoesAwayTakesItsSubscriptionsAlong) {
    auto shortLived = std::make_unique<Recorder>();
    shortLived->subscribeToKeyPath(key(), &object, "observeValue:", false);
    shortLived.reset();
    object.setValue(1, key()); // would call a dead object
    observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", true);
    EXPECT_THAT(observer.calls, ElementsAre(all(1, true)));
}

TEST_F(KeyValueObserverTest, AnObjectThatGoesAwayIsForgotten) {
    auto shortLived = std::make_unique<Observable>();
    observer.subscribeToKeyPath(key(), shortLived.get(), "observeValue:", false);
    shortLived.reset();
    observer.unsubscribeFromAllObjects(); // would touch a dead object
    EXPECT_TRUE(observer.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false));
}

TEST_F(KeyValueObserverTest, AnObserverMayUnsubscribeAnotherWhileAChangeIsTold) {
    class Ending : public Recorder {
    public:
        std::unique_ptr<Recorder> victim;
        void observeValueForKeyPath(const QString &keyPath, Observable *from, const QVariant &newValue,
                                    const ObservingContext &context) override {
            victim.reset();
            Recorder::observeValueForKeyPath(keyPath, from, newValue, context);
        }
    };
    Ending first;
    first.victim = std::make_unique<Recorder>();
    first.subscribeToKeyPath(key(), &object, "observeAll:init:keyPath:", false);
    first.victim->subscribeToKeyPath(key(), &object, "observeValue:", false);
    object.setValue(1, key());
    EXPECT_THAT(first.calls, ElementsAre(all(1, false)));
}

} // namespace barquell::test
