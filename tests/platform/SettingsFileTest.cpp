#include "platform/linux/SettingsFile.h"

#include "foundation/Log.h"
#include "foundation/Values.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <QDateTime>

#include <cmath>
#include <cstring>
#include <limits>

namespace barquell {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

QString refusalOf(const QByteArray &text) {
    QString refusal;
    EXPECT_EQ(decodeSettings(text, refusal), std::nullopt) << text.toStdString();
    return refusal;
}

QVariantMap decoded(const QByteArray &text) {
    QString refusal;
    const auto values = decodeSettings(text, refusal);
    EXPECT_TRUE(values) << refusal.toStdString();
    return values.value_or(QVariantMap());
}

TEST(SettingsFile, IsIndentedSortedAndPlain) {
    const QVariantMap values{
        {QStringLiteral("b"), QVariantList{1LL, 1.5}},
        {QStringLiteral("a"), true},
        {QStringLiteral("c"), 2.0},
        {QStringLiteral("d"), QDateTime(QDate(2024, 2, 29), QTime(12, 0, 0, 250), Qt::UTC)},
        {QStringLiteral("$e"), QByteArray("xyz")}};
    EXPECT_EQ(encodeSettings(values).toStdString(), R"({
    "$$e": {
        "$data": "eHl6"
    },
    "a": true,
    "b": [
        1,
        1.5
    ],
    "c": {
        "$real": "2"
    },
    "d": {
        "$date": "2024-02-29T12:00:00.250Z"
    }
}
)");
}

TEST(SettingsFile, ReadsWhatAPersonWrites) {
    const QVariantMap values =
        decoded("\xEF\xBB\xBF {\"whole\": 1.0, \"exp\": 1e3, \"big\": 9223372036854775808,\r\n"
                "\"date\": {\"$date\": \"2024-02-29T13:00:00+01:00\"}, \"e\": {}}");
    EXPECT_TRUE(sameValue(values.value(QStringLiteral("whole")), 1LL));
    EXPECT_TRUE(sameValue(values.value(QStringLiteral("exp")), 1000LL));
    EXPECT_TRUE(sameValue(values.value(QStringLiteral("big")), 9223372036854775808.0));
    EXPECT_TRUE(sameValue(values.value(QStringLiteral("date")),
                          QDateTime(QDate(2024, 2, 29), QTime(12, 0), Qt::UTC)));
    EXPECT_TRUE(sameValue(values.value(QStringLiteral("e")), QVariantMap()));
}

TEST(SettingsFile, SaysWhyItRefuses) {
    EXPECT_EQ(refusalOf("").toStdString(), "it is empty");
    EXPECT_EQ(refusalOf("[1]").toStdString(), "it is not a JSON object");
    EXPECT_THAT(refusalOf("{\"a\": tru").toStdString(), testing::HasSubstr("at byte"));
    EXPECT_EQ(refusalOf("{\"a\": [null]}").toStdString(), "it holds a null");
    EXPECT_EQ(refusalOf(R"({"a": "\ud800"})").toStdString(), "it holds half a character");
    EXPECT_EQ(refusalOf(R"({"\udc00": 1})").toStdString(), "it holds half a character");
    EXPECT_THAT(refusalOf(R"({"$date": "2024-01-01T00:00:00Z"})").toStdString(),
                testing::HasSubstr("\"$date\""));
}

TEST(SettingsFile, RefusesMarksThatMeanNothing) {
    for (const char *value :
         {R"({"$date": "yesterday"})", R"({"$date": "-001-01-01T00:00:00Z"})", R"({"$date": 5})",
          R"({"$data": "!"})", R"({"$real": "1x"})", R"({"$real": ""})", R"({"$real": "1e999"})",
          R"({"$other": "1"})", R"({"$real": "1", "x": 1})", R"({"$": 1})"}) {
        EXPECT_THAT(refusalOf(QByteArray("{\"key\": ") + value + "}").toStdString(), testing::HasSubstr("$"))
            << value;
    }
}

TEST(SettingsFile, RefusesADeeperNestingThanCanBeWritten) {
    const auto nested = [](int depth) {
        return QByteArray("{\"a\": ") + QByteArray(depth, '[') + QByteArray(depth, ']') + "}";
    };
    decoded(nested(kMaximumNesting));
    EXPECT_EQ(refusalOf(nested(kMaximumNesting + 1)).toStdString(), "its lists and maps lie too deep");
    EXPECT_FALSE(refusalOf(nested(100000)).isEmpty());
}

rc::Gen<QString> anyText() {
    // Plain letters mostly; and what has a meaning in JSON, in our marks or in UTF-16.
    const auto character = rc::gen::oneOf(
        rc::gen::inRange<char32_t>(0x20, 0x7F), rc::gen::inRange<char32_t>(0, 0xD800),
        rc::gen::inRange<char32_t>(0xE000, 0x110000),
        rc::gen::element<char32_t>(U'$', U'"', U'\\', U'\0', U'\uFEFF', U'\uFFFE', U'\uFFFF', U'\u2028'));
    return rc::gen::map(rc::gen::container<std::u32string>(character), [](const std::u32string &text) {
        return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
    });
}

rc::Gen<QString> anyKey() {
    return rc::gen::oneOf(anyText(),
                          rc::gen::element(QStringLiteral("$date"), QStringLiteral("$data"),
                                           QStringLiteral("$real"), QStringLiteral("$$"), QString()));
}

rc::Gen<QVariant> anyReal() {
    const auto bits = rc::gen::map(rc::gen::arbitrary<quint64>(), [](quint64 word) {
        double real = 0;
        std::memcpy(&real, &word, sizeof real);
        return QVariant(real);
    });
    const auto small =
        rc::gen::map(rc::gen::arbitrary<int>(), [](int whole) { return QVariant(whole / 4.0); });
    return rc::gen::oneOf(bits, small, rc::gen::element<QVariant>(-0.0, kInfinity, -kInfinity, std::nan("")));
}

rc::Gen<QVariant> anyScalar() {
    const auto date =
        rc::gen::map(rc::gen::inRange<qint64>(-62135596800000, 253402300800000),
                     [](qint64 msecs) { return QVariant(QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC)); });
    const auto data = rc::gen::map(rc::gen::arbitrary<std::string>(), [](const std::string &bytes) {
        return QVariant(QByteArray::fromStdString(bytes));
    });
    return rc::gen::oneOf(
        rc::gen::map(rc::gen::arbitrary<bool>(), [](bool value) { return QVariant(value); }),
        rc::gen::map(rc::gen::arbitrary<qint64>(), [](qint64 value) { return QVariant(value); }), anyReal(),
        date, data, rc::gen::map(anyText(), [](const QString &text) { return QVariant(text); }));
}

rc::Gen<QVariantMap> anyMap(const rc::Gen<QVariant> &value) {
    return rc::gen::map(rc::gen::container<std::map<QString, QVariant>>(anyKey(), value),
                        [](const std::map<QString, QVariant> &map) { return QVariantMap(map); });
}

rc::Gen<QVariant> anyValue(int depth) {
    if (depth == 0) {
        return anyScalar();
    }
    const auto inner = anyValue(depth - 1);
    return rc::gen::oneOf(anyScalar(),
                          rc::gen::map(rc::gen::container<std::vector<QVariant>>(inner),
                                       [](const std::vector<QVariant> &list) {
                                           return QVariant(QVariantList(list.begin(), list.end()));
                                       }),
                          rc::gen::map(anyMap(inner), [](const QVariantMap &map) { return QVariant(map); }));
}

TEST(SettingsFile, RefusesInOneShortLineWhateverTheTextSays) {
    EXPECT_EQ(refusalOf(R"({"a": {"$date": "x\ny\u001b[31mred"}})"),
              QStringLiteral("its \"$date\" cannot be \"x?y?[31mred\""));
    EXPECT_EQ(refusalOf(R"({"$a\nb": 1})"), QStringLiteral("the key \"$a?b\" means nothing there"));
    for (const char *tag : {"$date", "$data", "$real"}) {
        const QString refusal =
            refusalOf(QByteArray(R"({")") + tag + R"(": "\u2028)" + QByteArray(5'000'000, '~') + "\"}");
        EXPECT_LE(refusal.size(), kLongestQuote + 30) << tag;
        EXPECT_EQ(refusal, cleanLine(refusal)) << tag;
    }
    EXPECT_LE(refusalOf("{\"$" + QByteArray(5'000'000, '~') + "\": 1}").size(), kLongestQuote + 40);
}

TEST(SettingsFile, GivesBackExactlyWhatIsStored) {
    const bool held = rc::check("decode(encode(values)) == values", [] {
        const QVariantMap values = *rc::gen::resize(12, anyMap(anyValue(3)));
        RC_ASSERT(sameValue(storableValue(values).value_or(QVariant()), values));
        QString refusal;
        const auto again = decodeSettings(encodeSettings(values), refusal);
        RC_LOG() << encodeSettings(values).toStdString() << refusal.toStdString();
        RC_ASSERT(again.has_value());
        RC_ASSERT(sameValue(*again, values));
    });
    EXPECT_TRUE(held);
}

} // namespace
} // namespace barquell
