#pragma once

#include <QByteArray>
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

} // namespace barquell
