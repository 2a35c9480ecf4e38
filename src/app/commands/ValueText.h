#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

namespace barquell {

/// A stored value for a person's eyes: text as it is, truths as 1 and 0, lists in parentheses and maps in
/// braces with an item a line, dates in UTC, data in hexadecimal. No line feed at the end.
QString valueAsText(const QVariant &value);

/// A stored value as plain JSON for scripts: dates as ISO 8601 text in UTC, data as base64 text, what is not
/// finite as null. No line feed at the end.
QByteArray valueAsJson(const QVariant &value);

} // namespace barquell
