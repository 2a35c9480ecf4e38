#include "platform/linux/SettingsFile.h"

#include "foundation/Log.h"
#include "foundation/Values.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <charconv>
#include <cmath>

namespace barquell {

namespace {

const QLatin1String kDate("$date");
const QLatin1String kData("$data");
const QLatin1String kReal("$real");
const QLatin1Char kMark('$');

QJsonValue tagged(QLatin1String tag, const QString &content) {
    return QJsonObject{{tag, content}};
}

QJsonValue encodeReal(double real) {
    if (std::isfinite(real) && real != std::trunc(real)) {
        return real;
    }
    std::array<char, 32> text{}; // the longest shortest form has 24 characters
    const char *end = std::to_chars(text.data(), text.data() + text.size(), real).ptr;
    return tagged(kReal, std::isnan(real) ? QStringLiteral("nan")
                                          : QString::fromLatin1(text.data(), end - text.data()));
}

QJsonObject encodeMap(const QVariantMap &map);

QJsonValue encodeValue(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return static_cast<qint64>(value.toLongLong());
    case QMetaType::Double:
        return encodeReal(value.toDouble());
    case QMetaType::QByteArray:
        return tagged(kData, QString::fromLatin1(value.toByteArray().toBase64()));
    case QMetaType::QDateTime:
        return tagged(kDate, value.toDateTime().toUTC().toString(Qt::ISODateWithMs));
    case QMetaType::QVariantMap:
        return encodeMap(value.toMap());
    case QMetaType::QVariantList: {
        QJsonArray array;
        for (const QVariant &element : value.toList()) {
            array.append(encodeValue(element));
        }
        return array;
    }
    default:
        return value.toString();
    }
}

QJsonObject encodeMap(const QVariantMap &map) {
    QJsonObject object;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        const bool marked = entry.key().startsWith(kMark);
        object.insert(marked ? kMark + entry.key() : entry.key(), encodeValue(entry.value()));
    }
    return object;
}

/// Reads values and keeps the first reason why one cannot be read.
class Decoder {
public:
    explicit Decoder(QString &refusal) : _refusal(refusal) {}

    std::optional<QVariantMap> decodeMap(const QJsonObject &object, int depth) {
        QVariantMap map;
        for (auto entry = object.begin(); entry != object.end(); ++entry) {
            const std::optional<QString> key = decodeKey(entry.key());
            const std::optional<QVariant> value = key ? decodeValue(entry.value(), depth + 1) : std::nullopt;
            if (!value) {
                return std::nullopt;
            }
            map.insert(*key, *value);
        }
        return map;
    }

private:
    std::nullopt_t refuse(const QString &why) {
        _refusal = why;
        return std::nullopt;
    }

    std::optional<QString> decodeKey(const QString &key) {
        if (!key.startsWith(kMark)) {
            return decodeText(key);
        }
        const QString inner = key.mid(1);
        if (!inner.startsWith(kMark)) {
            return refuse(
                QStringLiteral("the key \"%1\" means nothing there").arg(cleanLine(key, kLongestQuote)));
        }
        return decodeText(inner);
    }

    std::optional<QString> decodeText(const QString &text) {
        return text.isValidUtf16() ? std::optional(text)
                                   : refuse(QStringLiteral("it holds half a character"));
    }

    std::optional<QVariant> decodeValue(const QJsonValue &json, int depth) {
        if (depth > kMaximumNesting) {
            return refuse(QStringLiteral("its lists and maps lie too deep"));
        }
        switch (json.type()) {
        case QJsonValue::Bool:
        case QJsonValue::Double:
            return json.toVariant(); // Qt tells whole numbers from others
        case QJsonValue::String:
            return decodeText(json.toString());
        case QJsonValue::Array:
            return decodeList(json.toArray(), depth);
        case QJsonValue::Object:
            return decodeObject(json.toObject(), depth);
        default:
            return refuse(QStringLiteral("it holds a null"));
        }
    }

    std::optional<QVariant> decodeList(const QJsonArray &array, int depth) {
        QVariantList list;
        for (const QJsonValue element : array) {
            const std::optional<QVariant> value = decodeValue(element, depth + 1);
            if (!value) {
                return std::nullopt;
            }
            list.append(*value);
        }
        return list;
    }

    std::optional<QVariant> decodeObject(const QJsonObject &object, int depth) {
        if (object.size() == 1 && object.begin().value().isString()) {
            const QString tag = object.begin().key();
            if (tag == kDate || tag == kData || tag == kReal) {
                const QString content = object.begin().value().toString();
                const std::optional<QVariant> value = decodeTagged(tag, content);
                return value ? value
                             : refuse(QStringLiteral("its \"%1\" cannot be \"%2\"")
                                          .arg(tag, cleanLine(content, kLongestQuote)));
            }
        }
        return decodeMap(object, depth);
    }

    static std::optional<QVariant> decodeTagged(const QString &tag, const QString &content) {
        if (tag == kDate) {
            return storableValue(QDateTime::fromString(content, Qt::ISODateWithMs));
        }
        const QByteArray text = content.toUtf8();
        if (tag == kData) {
            const auto data = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
            return data ? std::optional<QVariant>(*data) : std::nullopt;
        }
        double real = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), real);
        const bool whole = error == std::errc() && end == text.data() + text.size();
        return whole ? std::optional<QVariant>(real) : std::nullopt;
    }

    QString &_refusal;
};

} // namespace

std::optional<QVariantMap> decodeSettings(const QByteArray &text, QString &refusal) {
    if (text.isEmpty()) {
        refusal = QStringLiteral("it is empty");
        return std::nullopt;
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        refusal = QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset);
        return std::nullopt;
    }
    if (!document.isObject()) {
        refusal = QStringLiteral("it is not a JSON object");
        return std::nullopt;
    }
    return Decoder(refusal).decodeMap(document.object(), 0);
}

QByteArray encodeSettings(const QVariantMap &values) {
    QByteArray text = QJsonDocument(encodeMap(values)).toJson(QJsonDocument::Indented);
    // Qt takes a byte order mark at the beginning of any text for an encoding's mark and drops it when it
    // reads; escaped it is a character.
    return text.replace("\xEF\xBB\xBF", "\\ufeff");
}

} // namespace barquell
