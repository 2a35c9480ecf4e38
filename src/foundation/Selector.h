#pragma once

#include <QMetaMethod>
#include <QString>
#include <QVariant>

namespace barquell {

/// The name of a method that is called by name, with as many colons as it takes arguments:
/// "observeStorage:init:" is the invokable `observeStorage` with two parameters. The arguments are always a
/// prefix of (QVariant value, bool init, QString keyPath), so a method may leave the trailing ones away.
class Selector {
public:
    Selector() = default;
    Selector(const char *name) : _name(name) {} // NOLINT(google-explicit-constructor): reads as a literal

    bool operator==(const Selector &) const = default;

    bool isNull() const { return _name.isEmpty(); }
    QString name() const { return QString::fromLatin1(_name); }

    /// The invokable that the selector names on the receiver; invalid where the receiver does not respond to
    /// it.
    QMetaMethod resolvedOn(const QObject &receiver) const;

private:
    QByteArray _name;
};

/// Calls a resolved method with the prefix of the arguments that it takes.
void invoke(const QMetaMethod &method, QObject &receiver, const QVariant &value, bool init,
            const QString &keyPath);

} // namespace barquell
