#include "foundation/interface/Wiring.h"

#include <QMetaProperty>
#include <QObject>
#include <QVariant>

namespace barquell {

namespace {

constexpr QByteArrayView kPrefix = "outlet_";

/// The object as a value of the property's pointer type; invalid where it is not of that class.
QVariant asOutlet(QObject &object, const QMetaProperty &property) {
    QVariant value = QVariant::fromValue(&object);
    const bool fits = property.isWritable() && value.convert(property.metaType());
    return fits && value.value<QObject *>() == &object ? value : QVariant();
}

/// Plans that the receiver's property becomes the object.
void planOutlet(Wiring &wiring, QObject *receiver, const QString &name, QObject *object) {
    if (!receiver || !object) {
        wiring.complain(QStringLiteral("the outlet %1 has an end that does not exist").arg(name));
        return;
    }
    const QMetaObject *meta = receiver->metaObject();
    const QMetaProperty property = meta->property(meta->indexOfProperty(name.toUtf8().constData()));
    const QVariant value = property.isValid() ? asOutlet(*object, property) : QVariant();
    if (!value.isValid()) {
        wiring.complain(QStringLiteral("%1 has no outlet %2 for %3")
                            .arg(QString::fromLatin1(meta->className()), name, object->objectName()));
        return;
    }
    wiring.add([receiver, property, value] { property.write(receiver, value); });
}

} // namespace

void planOutlets(Wiring &wiring, QObject &object) {
    for (const QByteArray &property : object.dynamicPropertyNames()) {
        if (property.startsWith(kPrefix)) {
            const QString target = object.property(property.constData()).toString();
            planOutlet(wiring, &object, QString::fromUtf8(property.mid(kPrefix.size())),
                       wiring.objectNamed(target));
        }
    }
    const QString outlet = object.property("ownerOutlet").toString();
    if (!outlet.isEmpty()) {
        planOutlet(wiring, wiring.owner(), outlet, &object);
    }
}

} // namespace barquell
