// What every settings store keeps to, wherever it keeps its values.

#include "platform/SettingsStore.h"
#include "contract/ContractPlace.h"
#include "foundation/Values.h"
#include "support/LogCapture.h"
#include "support/Wait.h"

#include <QDateTime>

#include <limits>

namespace barquell::test {
namespace {

using Outcome = SettingsStore::Outcome;

const QString kKey = QStringLiteral("key");
const QString kOther = QStringLiteral("other");

class SettingsStoreContract : public Contract {
protected:
    void expectKept(const QVariant &value) {
        EXPECT_EQ(store.write(kKey, value), Outcome::Done);
        EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, value}}))
            << value.typeName() << " came back as " << store.read().value(kKey).typeName();
    }

    LogCapture logged;
    SettingsStore &store = *pieces.settingsStore;
};

TEST_P(SettingsStoreContract, BeginsEmptyWithoutAWord) {
    EXPECT_TRUE(store.read().isEmpty());
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_P(SettingsStoreContract, KeepsTruthsAndNumbersApart) {
    for (const QVariant &value :
         {QVariant(true), QVariant(false), QVariant(0LL), QVariant(1LL), QVariant(1.0), QVariant(0.0),
          QVariant(-0.0), QVariant(0.1), QVariant(1e300), QVariant(1e19)}) {
        expectKept(value);
    }
    expectKept(std::numeric_limits<qint64>::max());
    expectKept(std::numeric_limits<qint64>::min());
    expectKept(std::numeric_limits<double>::denorm_min());
    expectKept(std::numeric_limits<double>::infinity());
    expectKept(std::numeric_limits<double>::quiet_NaN());
}

TEST_P(SettingsStoreContract, KeepsText) {
    for (const char *text : {"", "1", "true", "a\nb\"\\", "$date", "Größe 🎹", "\xEF\xBB\xBFmark"}) {
        expectKept(QString::fromUtf8(QByteArray("x") + text).mid(1)); // fromUtf8 itself drops a leading mark
    }
    expectKept(QString(QChar(0)));
}

TEST_P(SettingsStoreContract, KeepsDatesToTheMillisecond) {
    expectKept(QDateTime(QDate(2024, 2, 29), QTime(23, 59, 59, 999), Qt::UTC));
    expectKept(QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC));
    expectKept(QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999), Qt::UTC));
}

TEST_P(SettingsStoreContract, KeepsData) {
    expectKept(QByteArray());
    expectKept(QByteArray("\0\xFF\x80text", 7));
}

TEST_P(SettingsStoreContract, KeepsAListOfOneAndAnEmptyList) {
    expectKept(QVariantList{QStringLiteral("one")});
    expectKept(QVariantList());
    EXPECT_TRUE(store.read().contains(kKey));
    expectKept(QVariantMap());
}

TEST_P(SettingsStoreContract, KeepsNestedValuesAndKeysOfAnyKind) {
    const QVariantMap inner{{QStringLiteral("$date"), QStringLiteral("no date")},
                            {QStringLiteral("$$"), QByteArray("x")},
                            {QString(), QVariantList{1LL, 1.0, true, QVariantList{}}}};
    expectKept(QVariantList{inner, QVariantMap{{QStringLiteral("$data"), QStringLiteral("AA==")}}});
    EXPECT_EQ(store.write(QStringLiteral("$real"), QStringLiteral("1")), Outcome::Done);
    EXPECT_TRUE(sameValue(store.read().value(QStringLiteral("$real")), QStringLiteral("1")));
}

TEST_P(SettingsStoreContract, KeepsTheDeepestNestingThatIsStorable) {
    QVariant value = QVariantMap{{QStringLiteral("$"), 1.0}};
    while (storableValue(QVariantList{value})) {
        value = QVariantList{value};
    }
    expectKept(value);
}

TEST_P(SettingsStoreContract, LeavesTheOtherKeysAsTheyAre) {
    store.write(kKey, 1LL);
    place->editFromOutside(kOther, QByteArray("2"));
    store.write(kKey, 3LL);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kKey, 3LL}, {kOther, QByteArray("2")}}));
    EXPECT_EQ(store.remove(kKey), Outcome::Done);
    EXPECT_TRUE(sameValue(store.read(), QVariantMap{{kOther, QByteArray("2")}}));
}

TEST_P(SettingsStoreContract, RemovesWhatIsNotThereWithoutAWord) {
    EXPECT_EQ(store.remove(kKey), Outcome::Done);
    EXPECT_EQ(store.removeDomain(), Outcome::Done);
    EXPECT_TRUE(logged.lines.isEmpty());
}

TEST_P(SettingsStoreContract, RemovesTheDomainAlsoWhatOthersWrote) {
    store.write(kKey, 1LL);
    place->editFromOutside(kOther, 2LL);
    EXPECT_EQ(store.removeDomain(), Outcome::Done);
    EXPECT_TRUE(store.read().isEmpty());
}

TEST_P(SettingsStoreContract, CallsTheWatcherFromTheRunLoopForEveryHand) {
    int calls = 0;
    store.read();
    store.watch([&calls] { ++calls; });
    store.write(kKey, 1LL);
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(waitFor([&] { return calls > 0; }));
    for (const QVariant &value : {QVariant(2LL), QVariant(3LL), QVariant()}) {
        calls = 0;
        place->editFromOutside(kKey, value);
        EXPECT_TRUE(waitFor([&] { return calls > 0 && sameValue(store.read().value(kKey), value); }));
    }
}

ON_EVERY_PLACE(SettingsStoreContract);

} // namespace
} // namespace barquell::test
