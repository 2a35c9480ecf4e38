#include "foundation/interface/InterfaceProperty.h"

#include "foundation/Bundle.h"

#include <QFont>
#include <QHash>
#include <QMetaEnum>
#include <QRect>
#include <QSizePolicy>
#include <QXmlStreamReader>

namespace barquell {

namespace {

/// The texts of the elements within one.
QHash<QString, QString> readParts(QXmlStreamReader &reader) {
    QHash<QString, QString> parts;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        parts.insert(name, reader.readElementText());
    }
    return parts;
}

QVariant readText(QXmlStreamReader &reader, bool mayTranslate) {
    const bool fixed = reader.attributes().value(QLatin1String("notr")) == QLatin1String("true");
    const QString text = reader.readElementText();
    return fixed || !mayTranslate || text.isEmpty() ? text : Bundle::localizedString(text);
}

QVariant readNumber(QXmlStreamReader &reader) {
    bool isNumber = false;
    const int number = reader.readElementText().toInt(&isNumber);
    if (!isNumber) {
        reader.raiseError(QStringLiteral("a number was expected"));
    }
    return number;
}

QSize readSize(const QHash<QString, QString> &parts) {
    return {parts.value(QStringLiteral("width")).toInt(), parts.value(QStringLiteral("height")).toInt()};
}

QVariant readRect(QXmlStreamReader &reader) {
    const auto parts = readParts(reader);
    return QRect(QPoint(parts.value(QStringLiteral("x")).toInt(), parts.value(QStringLiteral("y")).toInt()),
                 readSize(parts));
}

QVariant readFont(QXmlStreamReader &reader) {
    const auto parts = readParts(reader);
    QFont font; // what is not set in it is inherited
    if (parts.contains(QStringLiteral("pointsize"))) {
        font.setPointSize(parts.value(QStringLiteral("pointsize")).toInt());
    }
    if (parts.contains(QStringLiteral("bold"))) {
        font.setBold(parts.value(QStringLiteral("bold")) == QLatin1String("true"));
    }
    return font;
}

QSizePolicy::Policy policy(const QXmlStreamAttributes &attributes, QLatin1String name) {
    const QByteArray key = attributes.value(name).toLatin1();
    return static_cast<QSizePolicy::Policy>(
        QMetaEnum::fromType<QSizePolicy::Policy>().keyToValue(key.constData()));
}

QVariant readSizePolicy(QXmlStreamReader &reader) {
    const QXmlStreamAttributes attributes = reader.attributes();
    QSizePolicy both(policy(attributes, QLatin1String("hsizetype")),
                     policy(attributes, QLatin1String("vsizetype")));
    const auto parts = readParts(reader);
    both.setHorizontalStretch(parts.value(QStringLiteral("horstretch")).toInt());
    both.setVerticalStretch(parts.value(QStringLiteral("verstretch")).toInt());
    return both;
}

QVariant readValue(QXmlStreamReader &reader, bool mayTranslate) {
    const QString kind = reader.name().toString();
    if (kind == QLatin1String("string")) {
        return readText(reader, mayTranslate);
    }
    if (kind == QLatin1String("enum") || kind == QLatin1String("set") || kind == QLatin1String("cstring")) {
        return reader.readElementText();
    }
    if (kind == QLatin1String("bool")) {
        return reader.readElementText() == QLatin1String("true");
    }
    if (kind == QLatin1String("size")) {
        return readSize(readParts(reader));
    }
    static const QHash<QString, QVariant (*)(QXmlStreamReader &)> others{
        {QStringLiteral("number"), readNumber},
        {QStringLiteral("rect"), readRect},
        {QStringLiteral("font"), readFont},
        {QStringLiteral("sizepolicy"), readSizePolicy},
    };
    if (const auto read = others.value(kind)) {
        return read(reader);
    }
    reader.raiseError(QStringLiteral("a value of the unknown kind %1").arg(kind));
    return {};
}

} // namespace

InterfaceProperty readInterfaceProperty(QXmlStreamReader &reader) {
    const QXmlStreamAttributes attributes = reader.attributes();
    InterfaceProperty property{.name = attributes.value(QLatin1String("name")).toUtf8(),
                               .value = {},
                               .isDynamic = attributes.value(QLatin1String("stdset")) == QLatin1String("0")};
    if (!reader.readNextStartElement()) {
        reader.raiseError(
            QStringLiteral("the property %1 has no value").arg(QString::fromUtf8(property.name)));
        return property;
    }
    property.value = readValue(reader, !property.isDynamic);
    reader.skipCurrentElement();
    return property;
}

} // namespace barquell
