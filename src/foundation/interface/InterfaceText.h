#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace barquell {

/// An interface file as the form builder gets it: with every text in the user's language.
struct InterfaceText {
    QByteArray xml;
    QHash<QString, QString> objectClasses; ///< by the object's name; the builder itself knows none of them
    QString complaint;                     ///< why the rest is not to be used; empty where it is
};

/// Texts that are not marked notr="true" are keys of the localized strings, but for those of dynamic
/// properties, which are ours and not the user's.
InterfaceText readInterfaceText(const QByteArray &file);

} // namespace barquell
