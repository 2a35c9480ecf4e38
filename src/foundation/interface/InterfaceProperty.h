#pragma once

#include <QByteArray>
#include <QMetaEnum>
#include <QVariant>

class QXmlStreamReader;

namespace barquell {

/// A property as an interface file states it. An enumeration's value is its name.
struct InterfaceProperty {
    QByteArray name;
    QVariant value;
    bool isDynamic = false; ///< is of no class, and its text no key of the strings
};

/// Reads the element "property" that the reader is at, to its end. What makes no sense is an error of the
/// reader.
InterfaceProperty readInterfaceProperty(QXmlStreamReader &reader);

/// What the text says; 0 and an error of the reader where that is no whole number.
int numberFrom(QXmlStreamReader &reader, QStringView text);

/// The value of that name, or of several with bars between them where they are flags; 0 and an error of the
/// reader where there is none.
int valueNamed(QXmlStreamReader &reader, const QMetaEnum &names, const QString &name);

template <typename Enum>
Enum valueNamed(QXmlStreamReader &reader, const QString &name) {
    return static_cast<Enum>(valueNamed(reader, QMetaEnum::fromType<Enum>(), name));
}

} // namespace barquell
