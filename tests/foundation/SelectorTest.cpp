#include "foundation/Selector.h"

#include <gmock/gmock.h>

#include <QObject>

namespace barquell {
namespace {

class Receiver : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE void none() { told = QStringLiteral("none"); }
    Q_INVOKABLE void one(const QVariant &value) { told = value.toString(); }
    Q_INVOKABLE void two(const QVariant &value, bool init) {
        told = QStringLiteral("%1 %2").arg(value.toString()).arg(init ? 1 : 0);
    }
    Q_INVOKABLE void three(const QVariant &value, bool init, const QString &keyPath) {
        told = QStringLiteral("%1 %2 %3").arg(value.toString()).arg(init ? 1 : 0).arg(keyPath);
    }
    Q_INVOKABLE void four(const QVariant & /*value*/, bool /*init*/, const QString & /*keyPath*/,
                          bool /*more*/) {}
    Q_INVOKABLE void flag(bool /*init*/) {}
    Q_INVOKABLE void swapped(bool /*init*/, const QVariant & /*value*/) {}
    Q_INVOKABLE void both() { told = QStringLiteral("short"); }
    Q_INVOKABLE void both(const QVariant & /*value*/) { told = QStringLiteral("long"); }
    void hidden() {}

    QString told;
};

class Heir final : public Receiver {
    Q_OBJECT

public:
    Q_INVOKABLE void none() { told = QStringLiteral("heir"); }
};

/// What the receiver was told through the selector; null where it does not respond.
QString toldBy(const Selector &selector, Receiver &receiver) {
    receiver.told.clear();
    const QMetaMethod method = selector.resolvedOn(receiver);
    if (!method.isValid()) {
        return {};
    }
    invoke(method, receiver, QStringLiteral("value"), true, QStringLiteral("key"));
    return receiver.told;
}

TEST(SelectorTest, CallsWithThePrefixThatTheMethodTakes) {
    Receiver receiver;
    EXPECT_EQ(toldBy("none", receiver), QStringLiteral("none"));
    EXPECT_EQ(toldBy("one:", receiver), QStringLiteral("value"));
    EXPECT_EQ(toldBy("two:init:", receiver), QStringLiteral("value 1"));
    EXPECT_EQ(toldBy("three:init:keyPath:", receiver), QStringLiteral("value 1 key"));
}

TEST(SelectorTest, AsManyColonsAsArguments) {
    Receiver receiver;
    for (const char *name : {"none:", "one", "one::", "two:", "three::", "both::"}) {
        EXPECT_FALSE(Selector(name).resolvedOn(receiver).isValid()) << name;
    }
    EXPECT_EQ(toldBy("both", receiver), QStringLiteral("short"));
    EXPECT_EQ(toldBy("both:", receiver), QStringLiteral("long"));
    EXPECT_EQ(toldBy("two::", receiver), QStringLiteral("value 1")); // what stands between them is for people
}

TEST(SelectorTest, NoOtherArgumentsThanAPrefix) {
    const Receiver receiver;
    for (const char *name : {"flag:", "swapped::", "four::::"}) {
        EXPECT_FALSE(Selector(name).resolvedOn(receiver).isValid()) << name;
    }
}

TEST(SelectorTest, OnlyWhatCanBeCalledByName) {
    const Receiver receiver;
    for (const char *name : {"hidden", "absent", ":", "non"}) {
        EXPECT_FALSE(Selector(name).resolvedOn(receiver).isValid()) << name;
    }
}

TEST(SelectorTest, TheNearestClassAnswersFirst) {
    Heir heir;
    EXPECT_EQ(toldBy("none", heir), QStringLiteral("heir"));
    EXPECT_EQ(toldBy("one:", heir), QStringLiteral("value"));
}

TEST(SelectorTest, IsNullWithoutAName) {
    EXPECT_TRUE(Selector().isNull());
    EXPECT_FALSE(Selector("none").isNull());
    EXPECT_EQ(Selector("two:init:").name(), QStringLiteral("two:init:"));
    EXPECT_FALSE(Selector().resolvedOn(Receiver()).isValid());
}

} // namespace
} // namespace barquell

#include "SelectorTest.moc"
