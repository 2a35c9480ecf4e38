#include "foundation/interface/InterfaceProperty.h"

#include "foundation/Bundle.h"

#include <QFont>
#include <QHash>
#include <QRect>
#include <QSizePolicy>
#include <QXmlStreamReader>

namespace barquell {

namespace {

/// The first mistake counts.
void fail(QXmlStreamReader &reader, const QString &what) {
    if (!reader.hasError()) {
        reader.raiseError(what);
    }
}

/// The texts of the elements within one, which may be these.
QHash<QString, QString> readParts(QXmlStreamReader &reader, const QStringList &known) {
    QHash<QString, QString> parts;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        if (!known.contains(name)) {
            fail(reader, QStringLiteral("an unknown element %1").arg(name));
        }
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
    return numberFrom(reader, reader.readElementText());
}

bool boolFrom(QXmlStreamReader &reader, const QString &text) {
    const bool isTrue = text == QLatin1String("true");
    if (!isTrue && text != QLatin1String("false")) {
        fail(reader, QStringLiteral("\"%1\" is neither true nor false").arg(text));
    }
    return isTrue;
}

QVariant readBool(QXmlStreamReader &reader) {
    return boolFrom(reader, reader.readElementText());
}

QVariant readSize(QXmlStreamReader &reader) {
    const auto parts = readParts(reader, {QStringLiteral("width"), QStringLiteral("height")});
    return QSize(numberFrom(reader, parts.value(QStringLiteral("width"))),
                 numberFrom(reader, parts.value(QStringLiteral("height"))));
}

QVariant readRect(QXmlStreamReader &reader) {
    const QStringList sides{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
                            QStringLiteral("height")};
    const auto parts = readParts(reader, sides);
    return QRect(numberFrom(reader, parts.value(sides[0])), numberFrom(reader, parts.value(sides[1])),
                 numberFrom(reader, parts.value(sides[2])), numberFrom(reader, parts.value(sides[3])));
}

QVariant readFont(QXmlStreamReader &reader) {
    const QString size = QStringLiteral("pointsize");
    const QString bold = QStringLiteral("bold");
    const auto parts = readParts(reader, {size, bold});
    QFont font; // what is not set in it is inherited
    if (parts.contains(size)) {
        font.setPointSize(numberFrom(reader, parts.value(size)));
    }
    if (parts.contains(bold)) {
        font.setBold(boolFrom(reader, parts.value(bold)));
    }
    return font;
}

QVariant readSizePolicy(QXmlStreamReader &reader) {
    const QXmlStreamAttributes attributes = reader.attributes();
    const auto policy = [&](QLatin1String name) {
        return valueNamed<QSizePolicy::Policy>(reader, attributes.value(name).toString());
    };
    QSizePolicy both(policy(QLatin1String("hsizetype")), policy(QLatin1String("vsizetype")));
    const QString horizontal = QStringLiteral("horstretch");
    const QString vertical = QStringLiteral("verstretch");
    const auto parts = readParts(reader, {horizontal, vertical});
    both.setHorizontalStretch(numberFrom(reader, parts.value(horizontal)));
    both.setVerticalStretch(numberFrom(reader, parts.value(vertical)));
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
    static const QHash<QString, QVariant (*)(QXmlStreamReader &)> others{
        {QStringLiteral("bool"), readBool}, {QStringLiteral("number"), readNumber},
        {QStringLiteral("size"), readSize}, {QStringLiteral("rect"), readRect},
        {QStringLiteral("font"), readFont}, {QStringLiteral("sizepolicy"), readSizePolicy},
    };
    if (const auto read = others.value(kind)) {
        return read(reader);
    }
    fail(reader, QStringLiteral("a value of the unknown kind %1").arg(kind));
    return {};
}

} // namespace

int numberFrom(QXmlStreamReader &reader, QStringView text) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber) {
        fail(reader, QStringLiteral("\"%1\" is no number").arg(text));
    }
    return number;
}

int valueNamed(QXmlStreamReader &reader, const QMetaEnum &names, const QString &name) {
    const QByteArray key = name.toLatin1();
    bool isKnown = false;
    const int value = names.isFlag() ? names.keysToValue(key.constData(), &isKnown)
                                     : names.keyToValue(key.constData(), &isKnown);
    if (!isKnown) {
        fail(reader, QStringLiteral("\"%1\" is no %2").arg(name, QString::fromLatin1(names.enumName())));
    }
    return isKnown ? value : 0;
}

InterfaceProperty readInterfaceProperty(QXmlStreamReader &reader) {
    const QXmlStreamAttributes attributes = reader.attributes();
    InterfaceProperty property{.name = attributes.value(QLatin1String("name")).toUtf8(),
                               .value = {},
                               .isDynamic = attributes.value(QLatin1String("stdset")) == QLatin1String("0")};
    const QString name = QString::fromUtf8(property.name);
    if (!reader.readNextStartElement()) {
        fail(reader, QStringLiteral("the property %1 has no value").arg(name));
        return property;
    }
    property.value = readValue(reader, !property.isDynamic);
    if (reader.readNextStartElement()) {
        fail(reader, QStringLiteral("the property %1 has more than one value").arg(name));
    }
    return property;
}

} // namespace barquell
