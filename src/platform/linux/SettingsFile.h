#pragma once

#include <QByteArray>
#include <QVariantMap>

#include <optional>

namespace barquell {

/// The text of a settings file: one JSON object, indented, its keys in order, made to be edited by hand.
///
///     {
///         "Enabled": true,
///         "since": { "$date": "2024-02-29T12:00:00.250Z" }
///     }
///
/// Truths, whole numbers of 64 bits, numbers with a fraction, text, lists and maps are JSON's own; a number
/// without a fraction is whole however it is written, so 1.0 means 1. What JSON lacks is an object with a
/// single key:
///
/// - { "$date": text }: a moment in ISO 8601; written in UTC with milliseconds, without a zone it is local
///   time
/// - { "$data": text }: bytes in base64
/// - { "$real": text }: a real without a fraction, or "inf", "-inf", "nan"
///
/// A key that itself begins with "$" gets one more in front ("$$date"). JSON's null stands for no value and
/// is refused, as is any other key with a single "$": a file that cannot be kept whole is not half read.

/// Reads a file's text; nothing where it cannot be read, and the refusal then says why ("it is empty"), in
/// one short line whatever the text.
std::optional<QVariantMap> decodeSettings(const QByteArray &text, QString &refusal);

/// The text that decodes to exactly these values, all of them storable (see storableValue).
QByteArray encodeSettings(const QVariantMap &values);

} // namespace barquell
