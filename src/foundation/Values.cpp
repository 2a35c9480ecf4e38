#include "foundation/Values.h"

#include <QDateTime>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace barquell {

namespace {

constexpr qint64 kLargest = std::numeric_limits<qint64>::max();
constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();

qsizetype skipSpaces(const QString &text) {
    qsizetype at = 0;
    while (at < text.size() && text.at(at).isSpace()) {
        ++at;
    }
    return at;
}

bool isSign(QChar character) {
    return character == QLatin1Char('+') || character == QLatin1Char('-');
}

bool textAsBool(const QString &text) {
    qsizetype at = skipSpaces(text);
    if (at < text.size() && isSign(text.at(at))) {
        ++at;
    }
    while (at < text.size() && text.at(at) == QLatin1Char('0')) {
        ++at;
    }
    return at < text.size() && QStringLiteral("123456789YyTt").contains(text.at(at));
}

qint64 textAsInteger(const QString &text) {
    qsizetype at = skipSpaces(text);
    const bool negative = at < text.size() && text.at(at) == QLatin1Char('-');
    if (at < text.size() && isSign(text.at(at))) {
        ++at;
    }
    qint64 number = 0; // kept negative: there is one more number below zero than above
    for (; at < text.size() && text.at(at) >= QLatin1Char('0') && text.at(at) <= QLatin1Char('9'); ++at) {
        const qint64 digit = text.at(at).unicode() - u'0';
        if (number < (kSmallest + digit) / 10) {
            return negative ? kSmallest : kLargest;
        }
        number = number * 10 - digit;
    }
    if (negative) {
        return number;
    }
    return number == kSmallest ? kLargest : -number;
}

qint64 realAsInteger(double real) {
    if (std::isnan(real)) {
        return 0;
    }
    constexpr double limit = 9223372036854775808.0; // 2^63, the first real beyond
    if (real >= limit) {
        return kLargest;
    }
    return real < -limit ? kSmallest : static_cast<qint64>(real);
}

bool isInteger(int type) {
    switch (type) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return true;
    default:
        return false;
    }
}

bool isReal(int type) {
    return type == QMetaType::Double || type == QMetaType::Float;
}

std::optional<QVariant> storableInteger(const QVariant &value) {
    const bool isUnsigned = value.typeId() == QMetaType::ULongLong || value.typeId() == QMetaType::ULong;
    if (isUnsigned && value.toULongLong() > static_cast<quint64>(kLargest)) {
        return std::nullopt;
    }
    return QVariant(value.toLongLong());
}

std::optional<QVariant> storableDate(const QDateTime &date) {
    const QDateTime utc = date.toUTC();
    const int year = utc.date().year();
    if (!utc.isValid() || year < 1 || year > 9999) {
        return std::nullopt;
    }
    return QVariant(utc);
}

std::optional<QVariant> storableAt(const QVariant &value, int depth);

std::optional<QVariant> storableList(const QVariantList &list, int depth) {
    QVariantList storable;
    storable.reserve(list.size());
    for (const QVariant &element : list) {
        const std::optional<QVariant> stored = storableAt(element, depth + 1);
        if (!stored) {
            return std::nullopt;
        }
        storable.append(*stored);
    }
    return QVariant(storable);
}

std::optional<QVariant> storableMap(const QVariantMap &map, int depth) {
    QVariantMap storable;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        const std::optional<QVariant> stored = storableAt(entry.value(), depth + 1);
        if (!stored || !entry.key().isValidUtf16()) {
            return std::nullopt;
        }
        storable.insert(entry.key(), *stored);
    }
    return QVariant(storable);
}

std::optional<QVariant> storableAt(const QVariant &value, int depth) {
    if (depth > kMaximumNesting) {
        return std::nullopt;
    }
    const int type = value.typeId();
    if (isInteger(type)) {
        return storableInteger(value);
    }
    switch (type) {
    case QMetaType::Float:
        return QVariant(value.toDouble());
    case QMetaType::QString:
        return value.toString().isValidUtf16() ? std::optional(value) : std::nullopt;
    case QMetaType::QDateTime:
        return storableDate(value.toDateTime());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return storableList(value.toList(), depth);
    case QMetaType::QVariantMap:
        return storableMap(value.toMap(), depth);
    case QMetaType::Bool:
    case QMetaType::Double:
    case QMetaType::QByteArray:
        return value;
    default:
        return std::nullopt;
    }
}

bool sameReal(double left, double right) {
    return (std::isnan(left) && std::isnan(right)) ||
           std::bit_cast<quint64>(left) == std::bit_cast<quint64>(right);
}

bool sameList(const QVariantList &left, const QVariantList &right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), sameValue);
}

bool sameMap(const QVariantMap &left, const QVariantMap &right) {
    return left.keys() == right.keys() && sameList(left.values(), right.values());
}

} // namespace

bool boolValue(const QVariant &value) {
    const int type = value.typeId();
    if (type == QMetaType::QString) {
        return textAsBool(value.toString());
    }
    if (isReal(type)) {
        return value.toDouble() != 0 && !std::isnan(value.toDouble());
    }
    return (type == QMetaType::Bool || isInteger(type)) && value.toBool();
}

qint64 integerValue(const QVariant &value) {
    const int type = value.typeId();
    if (type == QMetaType::QString) {
        return textAsInteger(value.toString());
    }
    if (isReal(type)) {
        return realAsInteger(value.toDouble());
    }
    if (type == QMetaType::Bool) {
        return value.toBool() ? 1 : 0;
    }
    return isInteger(type) ? storableInteger(value).value_or(kLargest).toLongLong() : 0;
}

std::optional<QVariant> storableValue(const QVariant &value) {
    return storableAt(value, 0);
}

bool sameValue(const QVariant &left, const QVariant &right) {
    if (left.typeId() != right.typeId()) {
        return false;
    }
    switch (left.typeId()) {
    case QMetaType::UnknownType:
        return true;
    case QMetaType::Double:
        return sameReal(left.toDouble(), right.toDouble());
    case QMetaType::QVariantList:
        return sameList(left.toList(), right.toList());
    case QMetaType::QVariantMap:
        return sameMap(left.toMap(), right.toMap());
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::QString:
    case QMetaType::QByteArray:
    case QMetaType::QDateTime:
        return left == right;
    default:
        return false;
    }
}

} // namespace barquell
