#pragma once

#include "platform/AppLifecycle.h"
#include "platform/linux/session/TurnQueue.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QVariantMap>

#include <functional>

namespace barquell {

/// The program's object on the session bus: org.freedesktop.Application, with which launchers start it and
/// show it again, and its own interface com.vexolith.barquell. What is called wrongly is answered with an
/// error by the library.
class ApplicationObject final : public QObject {
    Q_OBJECT
public:
    using Reopen = std::function<void(const QVariantMap &platformData)>;

    explicit ApplicationObject(Reopen reopen);

    /// Again on each new connection; false where the place on the bus is taken.
    bool exportOn(QDBusConnection connection);

    static QString path() { return QStringLiteral("/com/vexolith/barquell"); }

    /// Performs what a call asks for in its turn, after the calls that came before it, and answers it then if
    /// an answer is wanted. With too many calls pending it is answered with an error instead, and so is a
    /// call of another signature: the library lets arguments through that are too many, where a method takes
    /// the message.
    void performInTurn(const QDBusMessage &call, const char *signature, std::function<void()> task);

    ScriptCommands commands;
    const Reopen reopen;

private:
    void answer(const QDBusMessage &call, const QDBusMessage &reply);

    QString _connectionName;
    TurnQueue _calls;
};

/// https://specifications.freedesktop.org/desktop-entry-spec/latest/dbus.html
class FreedesktopApplication final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    explicit FreedesktopApplication(ApplicationObject &object)
        : QDBusAbstractAdaptor(&object), _object(object) {}

public Q_SLOTS:
    void Activate(const QVariantMap &platform_data); // NOLINT: the names are the protocol's
    void Open(const QStringList &uris, const QVariantMap &platform_data);
    void ActivateAction(const QString &action_name, const QVariantList &parameter,
                        const QVariantMap &platform_data);

private:
    ApplicationObject &_object;
};

/// The script commands, and what the program says of itself. Each command writes the settings file, which
/// waits for the disk, so they take turns; what the program says depends on none of them and is answered at
/// once.
class ScriptInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.vexolith.barquell")
public:
    explicit ScriptInterface(ApplicationObject &object) : QDBusAbstractAdaptor(&object), _object(object) {}

public Q_SLOTS:
    void ToggleTouchBar(const QDBusMessage &call);
    void SetTouchBarActive(bool active, const QDBusMessage &call);
    QVariantMap Status();

private:
    ApplicationObject &_object;
};

} // namespace barquell
