#include "foundation/Values.h"
#include "foundation/Observable.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QObject>

#include <cmath>
#include <limits>

namespace barquell {
namespace {

constexpr qint64 kLargest = std::numeric_limits<qint64>::max();
constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const QDateTime kDate(QDate(2024, 2, 29), QTime(12, 0, 0, 250), Qt::UTC);

QVariant nested(int depth) {
    QVariant value = true;
    for (int level = 0; level < depth; ++level) {
        value = QVariantList{value};
    }
    return value;
}

TEST(BoolValue, OfTextFollowsItsFirstTellingCharacter) {
    for (const char *text :
         {"YES", "yes", "true", "T", "1", " \t\n1", "+7", "-1", "0001", "12abc", "+0009"}) {
        EXPECT_TRUE(boolValue(QString::fromLatin1(text))) << text;
    }
    for (const char *text : {"", "NO", "false", "0", "000", "on", "abc1", "- 1", "--1", "0x1", "00 1", " "}) {
        EXPECT_FALSE(boolValue(QString::fromLatin1(text))) << text;
    }
}

TEST(BoolValue, OfNumbersIsWhetherTheyDifferFromZero) {
    EXPECT_TRUE(boolValue(true));
    EXPECT_FALSE(boolValue(false));
    EXPECT_TRUE(boolValue(-3));
    EXPECT_FALSE(boolValue(0));
    EXPECT_TRUE(boolValue(std::numeric_limits<quint64>::max()));
    EXPECT_TRUE(boolValue(0.5));
    EXPECT_FALSE(boolValue(-0.0));
    EXPECT_FALSE(boolValue(std::nan("")));
}

TEST(IntegerValue, OfTextIsTheNumberItBeginsWith) {
    EXPECT_EQ(integerValue(QStringLiteral("12abc")), 12);
    EXPECT_EQ(integerValue(QStringLiteral("  -7.9")), -7);
    EXPECT_EQ(integerValue(QStringLiteral("+0042")), 42);
    for (const char *text : {"", "abc", "YES", "- 1", "+", ".5"}) {
        EXPECT_EQ(integerValue(QString::fromLatin1(text)), 0) << text;
    }
}

TEST(IntegerValue, OfTextStopsAtTheLimits) {
    EXPECT_EQ(integerValue(QStringLiteral("9223372036854775807")), kLargest);
    EXPECT_EQ(integerValue(QStringLiteral("9223372036854775808")), kLargest);
    EXPECT_EQ(integerValue(QStringLiteral("99999999999999999999999")), kLargest);
    EXPECT_EQ(integerValue(QStringLiteral("-9223372036854775807")), -kLargest);
    EXPECT_EQ(integerValue(QStringLiteral("-9223372036854775808")), kSmallest);
    EXPECT_EQ(integerValue(QStringLiteral("-9223372036854775809")), kSmallest);
}

TEST(IntegerValue, OfRealsIsTheirWholePartWithinTheLimits) {
    EXPECT_EQ(integerValue(2.9), 2);
    EXPECT_EQ(integerValue(-2.9), -2);
    EXPECT_EQ(integerValue(1e30), kLargest);
    EXPECT_EQ(integerValue(9223372036854775808.0), kLargest);
    EXPECT_EQ(integerValue(-9223372036854775808.0), kSmallest);
    EXPECT_EQ(integerValue(-kInfinity), kSmallest);
    EXPECT_EQ(integerValue(std::nan("")), 0);
}

TEST(IntegerValue, OfTruthsAndIntegersIsThemselves) {
    EXPECT_EQ(integerValue(true), 1);
    EXPECT_EQ(integerValue(false), 0);
    EXPECT_EQ(integerValue(-5), -5);
    EXPECT_EQ(integerValue(kSmallest), kSmallest);
    EXPECT_EQ(integerValue(std::numeric_limits<quint64>::max()), kLargest);
}

TEST(BoolAndIntegerValue, OfEverythingElseAreFalseAndZero) {
    const QVariantList others{QVariant(),
                              nullObject(),
                              QVariantList{1},
                              QVariantMap{{QStringLiteral("1"), 1}},
                              QByteArray("1"),
                              kDate,
                              QStringList{QStringLiteral("1")}};
    for (const QVariant &other : others) {
        EXPECT_FALSE(boolValue(other)) << other.typeName();
        EXPECT_EQ(integerValue(other), 0) << other.typeName();
    }
}

TEST(StorableValue, BringsEveryIntegerToOneType) {
    const QVariantList integers{qint8{5},
                                quint8{5},
                                qint16{5},
                                quint16{5},
                                5,
                                5U,
                                qint64{5},
                                quint64{5},
                                QVariant::fromValue(5L),
                                QVariant::fromValue(5UL)};
    for (const QVariant &integer : integers) {
        const QVariant stored = storableValue(integer).value_or(QVariant());
        EXPECT_TRUE(sameValue(stored, QVariant(5LL))) << integer.typeName();
    }
    EXPECT_EQ(storableValue(quint64{1} << 63), std::nullopt);
}

TEST(StorableValue, BringsOtherTypesToTheirOwn) {
    EXPECT_TRUE(sameValue(*storableValue(1.5F), QVariant(1.5)));
    EXPECT_TRUE(
        sameValue(*storableValue(QStringList{QStringLiteral("a")}), QVariantList{QStringLiteral("a")}));
    const QDateTime elsewhere = kDate.toOffsetFromUtc(3600);
    const QVariant date = *storableValue(elsewhere);
    EXPECT_EQ(date.toDateTime().timeSpec(), Qt::UTC);
    EXPECT_EQ(date.toDateTime(), kDate);
    const QVariantMap map{{QStringLiteral("list"), QVariantList{1, QVariantList{2.5F}}}};
    const QVariantMap stored{{QStringLiteral("list"), QVariantList{1LL, QVariantList{2.5}}}};
    EXPECT_TRUE(sameValue(*storableValue(map), stored));
}

TEST(StorableValue, RefusesWhatSettingsCannotHold) {
    QObject object;
    const QString half(QChar(0xD800));
    const QVariantList refused{QVariant(),
                               nullObject(),
                               QVariant::fromValue(&object),
                               QVariant(QDate(2024, 1, 1)),
                               QVariant(QDateTime()),
                               QVariant(QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC)),
                               QVariant(QDateTime(QDate(-1, 1, 1), QTime(0, 0), Qt::UTC)),
                               QVariant(half),
                               QVariantMap{{half, 1}}};
    for (const QVariant &value : refused) {
        EXPECT_EQ(storableValue(value), std::nullopt) << value.typeName();
        EXPECT_EQ(storableValue(QVariantList{QVariant(1), QVariantList{value}}), std::nullopt)
            << value.typeName();
    }
}

TEST(StorableValue, RefusesTooDeepANesting) {
    EXPECT_NE(storableValue(nested(kMaximumNesting)), std::nullopt);
    EXPECT_EQ(storableValue(nested(kMaximumNesting + 1)), std::nullopt);
}

TEST(SameValue, TellsTypesApart) {
    const QVariantList different{QVariant(),
                                 true,
                                 1LL,
                                 1.0,
                                 QStringLiteral("1"),
                                 QByteArray("1"),
                                 QVariantList{1LL},
                                 QVariantMap{{QStringLiteral("1"), 1LL}},
                                 kDate,
                                 0.0,
                                 -0.0,
                                 std::nan("")};
    for (qsizetype left = 0; left < different.size(); ++left) {
        for (qsizetype right = 0; right < different.size(); ++right) {
            EXPECT_EQ(sameValue(different.at(left), different.at(right)), left == right)
                << left << ' ' << right;
        }
    }
}

TEST(SameValue, LooksIntoListsAndMaps) {
    const QString key = QStringLiteral("k");
    EXPECT_TRUE(sameValue(QVariantList{std::nan("")}, QVariantList{std::nan("")}));
    EXPECT_FALSE(sameValue(QVariantList{1LL}, QVariantList{1.0}));
    EXPECT_FALSE(sameValue(QVariantList{1LL}, QVariantList{1LL, 1LL}));
    EXPECT_FALSE(sameValue(QVariantMap{{key, true}}, QVariantMap{{key, 1LL}}));
    EXPECT_FALSE(sameValue(QVariantMap{{key, true}}, QVariantMap{{QStringLiteral("l"), true}}));
}

} // namespace
} // namespace barquell
