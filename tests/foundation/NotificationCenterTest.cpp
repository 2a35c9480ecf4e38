#include "foundation/NotificationCenter.h"

#include <gmock/gmock.h>

#include <QStringList>

namespace barquell {
namespace {

const QString kName = QStringLiteral("name");

class NotificationCenterTest : public testing::Test {
protected:
    void note(QObject &observer, const char *text, const QObject *sender = nullptr) {
        center.addObserver(
            observer, kName, [this, text](const Notification &) { notes.append(QString::fromLatin1(text)); },
            sender);
    }

    QStringList posted(QObject *object = nullptr) {
        notes.clear();
        center.post({kName, object, {}});
        return notes;
    }

    NotificationCenter center;
    QStringList notes;
    std::unique_ptr<QObject> first = std::make_unique<QObject>();
    std::unique_ptr<QObject> second = std::make_unique<QObject>();
};

TEST_F(NotificationCenterTest, TellsWhatWhoAndWithWhat) {
    Notification told;
    center.addObserver(*first, kName, [&](const Notification &notification) { told = notification; });
    center.post({kName, second.get(), {{QStringLiteral("key"), 5}}});
    EXPECT_EQ(told.name, kName);
    EXPECT_EQ(told.object, second.get());
    EXPECT_EQ(told.userInfo.value(QStringLiteral("key")).toInt(), 5);
}

TEST_F(NotificationCenterTest, TellsInTheOrderOfRegistration) {
    note(*second, "a");
    note(*first, "b");
    note(*second, "c");
    EXPECT_EQ(posted(), QStringList({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
}

TEST_F(NotificationCenterTest, TellsNobodyOfAnotherName) {
    note(*first, "a");
    center.post({QStringLiteral("another"), nullptr, {}});
    EXPECT_TRUE(notes.isEmpty());
}

TEST_F(NotificationCenterTest, ASenderThatIsAskedForIsTheOnlyOneHeard) {
    note(*first, "any");
    note(*first, "second", second.get());
    EXPECT_EQ(posted(second.get()), QStringList({QStringLiteral("any"), QStringLiteral("second")}));
    EXPECT_EQ(posted(first.get()), QStringList{QStringLiteral("any")});
    EXPECT_EQ(posted(), QStringList{QStringLiteral("any")});
}

TEST_F(NotificationCenterTest, ARemovedObserverHearsNothingMore) {
    note(*first, "a");
    note(*second, "b");
    note(*first, "c");
    center.removeObserver(*first);
    EXPECT_EQ(posted(), QStringList{QStringLiteral("b")});
}

TEST_F(NotificationCenterTest, AnObserverThatIsGoneHearsNothingMore) {
    note(*first, "a");
    note(*second, "b");
    first.reset();
    EXPECT_EQ(posted(), QStringList{QStringLiteral("b")});
}

TEST_F(NotificationCenterTest, OneThatIsRemovedOrDestroyedWhileTheOthersAreToldIsSkipped) {
    QObject third;
    center.addObserver(third, kName, [&](const Notification &) {
        center.removeObserver(*first);
        second.reset();
    });
    note(*first, "removed");
    note(*second, "destroyed");
    note(third, "last");
    EXPECT_EQ(posted(), QStringList{QStringLiteral("last")});
}

TEST_F(NotificationCenterTest, OneThatRemovesItselfIsNotAskedAgain) {
    center.addObserver(*first, kName, [&](const Notification &) {
        notes.append(QStringLiteral("once"));
        center.removeObserver(*first);
    });
    note(*first, "of the same");
    note(*second, "other");
    EXPECT_EQ(posted(), QStringList({QStringLiteral("once"), QStringLiteral("other")}));
    EXPECT_EQ(posted(), QStringList{QStringLiteral("other")});
}

TEST_F(NotificationCenterTest, OneThatIsAddedWhileOthersAreToldHearsFromTheNextOn) {
    bool added = false;
    center.addObserver(*first, kName, [&](const Notification &) {
        if (!std::exchange(added, true)) {
            note(*second, "late");
        }
    });
    EXPECT_TRUE(posted().isEmpty());
    EXPECT_EQ(posted(), QStringList{QStringLiteral("late")});
}

} // namespace
} // namespace barquell
