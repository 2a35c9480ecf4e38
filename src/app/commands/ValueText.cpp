#include "app/commands/ValueText.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

namespace barquell {

namespace {

constexpr qsizetype kIndent = 4;

QString dateAsText(const QDateTime &date) {
    const bool whole = date.time().msec() == 0;
    return date.toUTC().toString(whole ? QStringLiteral("yyyy-MM-dd HH:mm:ss")
                                       : QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")) +
           QStringLiteral(" +0000");
}

/// Text within a list or a map, quoted where it is more than a word.
QString quoted(const QString &text) {
    const bool word = !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar character) {
        const ushort code = character.unicode();
        return code < 0x80 && (character.isLetterOrNumber() || QStringLiteral("_.:/$").contains(character));
    });
    if (word) {
        return text;
    }
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
    escaped.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QString itemAsText(const QVariant &value, int depth);

QString listAsText(const QVariantList &list, int depth) {
    const QString margin(depth * kIndent, QLatin1Char(' '));
    QStringList lines;
    for (const QVariant &element : list) {
        lines.append(margin + QString(kIndent, QLatin1Char(' ')) + itemAsText(element, depth + 1));
    }
    const QString items = lines.isEmpty() ? QString() : lines.join(QLatin1String(",\n")) + QLatin1Char('\n');
    return QStringLiteral("(\n") + items + margin + QLatin1Char(')');
}

QString mapAsText(const QVariantMap &map, int depth) {
    const QString margin(depth * kIndent, QLatin1Char(' '));
    QString lines;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        lines += margin + QString(kIndent, QLatin1Char(' ')) + quoted(entry.key()) + QLatin1String(" = ") +
                 itemAsText(entry.value(), depth + 1) + QLatin1String(";\n");
    }
    return QStringLiteral("{\n") + lines + margin + QLatin1Char('}');
}

QString itemAsText(const QVariant &value, int depth) {
    switch (value.typeId()) {
    case QMetaType::QVariantList:
        return listAsText(value.toList(), depth);
    case QMetaType::QVariantMap:
        return mapAsText(value.toMap(), depth);
    case QMetaType::QString:
    case QMetaType::QDateTime:
        return quoted(valueAsText(value));
    default:
        return valueAsText(value);
    }
}

QJsonValue jsonValue(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toBase64());
    case QMetaType::QDateTime:
        return value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    case QMetaType::QVariantList: {
        QJsonArray array;
        for (const QVariant &element : value.toList()) {
            array.append(jsonValue(element));
        }
        return array;
    }
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        QJsonObject object;
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            object.insert(entry.key(), jsonValue(entry.value()));
        }
        return object;
    }
    default:
        return QJsonValue::fromVariant(value);
    }
}

} // namespace

QString valueAsText(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QByteArray:
        return QLatin1Char('<') + QString::fromLatin1(value.toByteArray().toHex()) + QLatin1Char('>');
    case QMetaType::QDateTime:
        return dateAsText(value.toDateTime());
    case QMetaType::QVariantList:
        return listAsText(value.toList(), 0);
    case QMetaType::QVariantMap:
        return mapAsText(value.toMap(), 0);
    default:
        return value.toString();
    }
}

QByteArray valueAsJson(const QVariant &value) {
    const QJsonValue json = jsonValue(value);
    if (json.isObject()) {
        return QJsonDocument(json.toObject()).toJson(QJsonDocument::Indented).trimmed();
    }
    if (json.isArray()) {
        return QJsonDocument(json.toArray()).toJson(QJsonDocument::Indented).trimmed();
    }
    // Qt writes documents, not values: put it into a list and take the brackets off.
    const QByteArray list = QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace barquell
