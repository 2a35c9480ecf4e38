#include "foundation/Observable.h"

#include "support/ChangeRecorder.h"

#include <gmock/gmock.h>

#include <functional>

namespace barquell {
namespace {

const QString kKey = QStringLiteral("key");
const QString kOther = QStringLiteral("other");

void firstFunction(const QVariant & /*newValue*/) {}
void secondFunction(const QVariant & /*newValue*/) {}

/// Does what it is told to when it is told of a change, and notes with which function it was registered.
class Reaction final : public ChangeObserver {
public:
    void observeValueForKeyPath(const QString & /*keyPath*/, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override {
        values.append(newValue);
        const auto *const function = std::get_if<ChangeFunction>(&context);
        functions.append(function ? *function : nullptr);
        if (act) {
            act(object);
        }
    }

    std::function<void(Observable *object)> act;
    QVariantList values;
    QList<ChangeFunction> functions;
};

class ObservableTest : public testing::Test {
protected:
    std::unique_ptr<Observable> object = std::make_unique<Observable>();
    Reaction reaction;
    test::ChangeRecorder recorder;
};

TEST_F(ObservableTest, TellsOfItsKeyAloneAndAlsoOfAnEqualValue) {
    object->addObserver(recorder, kKey, {});
    object->setValue(1, kOther);
    EXPECT_TRUE(recorder.changes.isEmpty());
    object->setValue(1, kKey);
    object->setValue(1, kKey);
    ASSERT_EQ(recorder.changes.size(), 2);
    EXPECT_EQ(recorder.changes.first().first, kKey);
    EXPECT_EQ(recorder.changes.first().second, QVariant(1));
    EXPECT_EQ(object->valueForKeyPath(kKey), QVariant(1));
}

TEST_F(ObservableTest, TellsTheNullObjectWhereThereIsNoValue) {
    object->addObserver(recorder, kKey, {});
    object->setValue(QVariant(), kKey);
    ASSERT_EQ(recorder.changes.size(), 1);
    EXPECT_TRUE(isNullObject(recorder.changes.first().second));
    EXPECT_FALSE(object->valueForKeyPath(kKey).isValid());
}

TEST_F(ObservableTest, EachRegistrationOfAPairIsTold) {
    object->addObserver(reaction, kKey, &firstFunction);
    object->addObserver(reaction, kKey, &secondFunction);
    object->setValue(1, kKey);
    EXPECT_EQ(reaction.functions, QList<ChangeFunction>({&firstFunction, &secondFunction}));
}

TEST_F(ObservableTest, TheNewestRegistrationOfAPairEndsFirst) {
    object->addObserver(reaction, kKey, &firstFunction);
    object->addObserver(recorder, kKey, {});
    object->addObserver(reaction, kKey, &secondFunction);
    object->removeObserver(reaction, kKey);
    object->setValue(1, kKey);
    EXPECT_EQ(reaction.functions, QList<ChangeFunction>{&firstFunction});
    object->removeObserver(reaction, kKey);
    object->setValue(2, kKey);
    EXPECT_EQ(reaction.functions.size(), 1);
    EXPECT_EQ(recorder.changes.size(), 2);
}

TEST_F(ObservableTest, EndingWhatWasNeverBegunIsNoError) {
    object->addObserver(recorder, kOther, {});
    object->removeObserver(recorder, kKey);
    object->removeObserver(reaction, kOther);
    object->setValue(1, kOther);
    EXPECT_EQ(recorder.changes.size(), 1);
}

TEST_F(ObservableTest, OneThatIsRemovedWhileTheOthersAreToldIsSkipped) {
    reaction.act = [this](Observable *told) { told->removeObserver(recorder, kKey); };
    object->addObserver(reaction, kKey, {});
    object->addObserver(recorder, kKey, {});
    object->setValue(1, kKey);
    EXPECT_TRUE(recorder.changes.isEmpty());
    EXPECT_EQ(reaction.values.size(), 1);
}

TEST_F(ObservableTest, OneThatRemovesItselfIsToldOnce) {
    reaction.act = [this](Observable *told) { told->removeObserver(reaction, kKey); };
    object->addObserver(reaction, kKey, {});
    object->addObserver(recorder, kKey, {});
    object->setValue(1, kKey);
    object->setValue(2, kKey);
    EXPECT_EQ(reaction.values.size(), 1);
    EXPECT_EQ(recorder.changes.size(), 2);
}

TEST_F(ObservableTest, OneThatIsAddedWhileOthersAreToldHearsFromTheNextOn) {
    reaction.act = [this](Observable *told) {
        reaction.act = {};
        told->addObserver(recorder, kKey, {});
    };
    object->addObserver(reaction, kKey, {});
    object->setValue(1, kKey);
    EXPECT_TRUE(recorder.changes.isEmpty());
    object->setValue(2, kKey);
    EXPECT_EQ(recorder.changes.size(), 1);
}

TEST_F(ObservableTest, AnObserverMayDestroyTheObjectThatTellsIt) {
    reaction.act = [this](Observable *) { object.reset(); };
    object->addObserver(reaction, kKey, {});
    object->addObserver(recorder, kKey, {});
    object->setValue(1, kKey);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(reaction.values.size(), 1);
    EXPECT_TRUE(recorder.changes.isEmpty()); // there is nothing any more that has a value
}

TEST_F(ObservableTest, AWriteWhileBeingToldIsToldAsWell) {
    reaction.act = [this](Observable *told) {
        reaction.act = {};
        told->setValue(2, kKey);
    };
    test::ChangeRecorder before;
    object->addObserver(before, kKey, {});
    object->addObserver(reaction, kKey, {});
    object->addObserver(recorder, kKey, {});
    object->setValue(1, kKey);
    EXPECT_EQ(reaction.values, QVariantList({1, 2}));
    EXPECT_EQ(recorder.changes.last().second, QVariant(2)); // nobody is left with the older value
    ASSERT_EQ(before.changes.size(), 2);
    EXPECT_EQ(before.changes.at(0).second, QVariant(1));
    EXPECT_EQ(before.changes.at(1).second, QVariant(2));
    EXPECT_EQ(object->valueForKeyPath(kKey), QVariant(2));
}

TEST_F(ObservableTest, NullObjectsAndNilAreTurnedIntoEachOther) {
    EXPECT_TRUE(isNullObject(nullObject()));
    EXPECT_FALSE(isNullObject(QVariant()));
    EXPECT_FALSE(nilForNullObject(nullObject()).isValid());
    EXPECT_EQ(nilForNullObject(5), QVariant(5));
}

} // namespace
} // namespace barquell
