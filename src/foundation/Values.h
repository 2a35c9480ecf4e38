#pragma once

#include <QVariant>

#include <optional>

namespace barquell {

/// How deep lists and maps may lie within each other in a storable value.
inline constexpr int kMaximumNesting = 100;

/// What a value answers when asked for a truth: numbers whether they differ from 0 (NaN counts as 0), text
/// whether it begins, after white space, a sign and zeros, with a digit or with Y or T in either case.
/// Anything else is false.
bool boolValue(const QVariant &value);

/// What a value answers when asked for an integer: a real its whole part, text the digits it begins with
/// ("12abc" is 12), both bounded by what 64 bits hold. Anything else is 0.
qint64 integerValue(const QVariant &value);

/// The value as settings store it: bool, qlonglong, double, QString, QByteArray, QDateTime in UTC (years 1 to
/// 9999), QVariantList or QVariantMap of these. Nothing where it cannot be stored: nil, the null object,
/// objects, integers beyond 64 bits with sign, text with unpaired surrogates, too deep a nesting, or a
/// container that holds any of it.
std::optional<QVariant> storableValue(const QVariant &value);

/// Equal in type as in content, which QVariant's own comparison is not: true, 1, 1.0 and "1" are four values.
/// The two zeros of a real differ, NaN equals itself. Storable values and nil only; anything else equals
/// nothing.
bool sameValue(const QVariant &left, const QVariant &right);

} // namespace barquell
