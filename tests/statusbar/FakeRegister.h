#pragma once

#include "platform/linux/statusbar/NotifierItem.h"
#include "session/PrivateBus.h"
#include "support/Wait.h"

#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QObject>
#include <QStringList>

namespace barquell::test {

/// The register of status items, with a panel before it: another program's, on a connection of its own.
class FakeRegister : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasPanel)

public:
    explicit FakeRegister(const PrivateBus &bus, bool panel = true) : _program(bus), _panel(panel) {
        EXPECT_TRUE(_program.connection().registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                                         QDBusConnection::ExportAllContents));
        EXPECT_TRUE(_program.connection().registerService(QStringLiteral("org.kde.StatusNotifierWatcher")));
        // What an item announces after it was registered.
        EXPECT_TRUE(_program.connection().connect(QString(), QStringLiteral("/StatusNotifierItem"),
                                                  itemInterface(), QStringLiteral("NewIcon"), this,
                                                  SLOT(noteNewIcon())));
        EXPECT_TRUE(_program.connection().connect(QString(), QStringLiteral("/StatusNotifierItem"),
                                                  itemInterface(), QStringLiteral("NewToolTip"), this,
                                                  SLOT(noteNewToolTip())));
        EXPECT_TRUE(_program.connection().connect(QString(), QStringLiteral("/StatusNotifierItem"),
                                                  itemInterface(), QStringLiteral("NewStatus"), this,
                                                  SLOT(noteNewStatus(QString))));
    }

    static QString itemInterface() { return QStringLiteral("org.kde.StatusNotifierItem"); }

    bool hasPanel() const { return _panel; }

    void setPanel(bool panel) {
        _panel = panel;
        if (panel) {
            Q_EMIT StatusNotifierHostRegistered();
        } else {
            Q_EMIT StatusNotifierHostUnregistered();
        }
    }

    /// What the panel does with the newest item; nobody waits here, since the item lives in this very
    /// process.
    void click(const char *method, int x, int y) { call(method, {x, y}); }

    /// Asks the newest item for a property, as a panel does after it was registered.
    QVariant property(const char *name) {
        QDBusMessage question = QDBusMessage::createMethodCall(
            items.last(), QStringLiteral("/StatusNotifierItem"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        question << itemInterface() << QString::fromLatin1(name);
        const QDBusPendingReply<QVariant> answer = _program.connection().asyncCall(question);
        EXPECT_TRUE(waitFor([&] { return answer.isFinished(); }));
        return answer.isError() ? QVariant() : answer.value();
    }

    IconPixmaps pixmaps() { return qdbus_cast<IconPixmaps>(property("IconPixmap")); }

    bool isOnBus(const QString &name) { return _program.connection().interface()->isServiceRegistered(name); }

    QStringList items; ///< in the order in which they were registered
    int newIcons = 0;
    int newToolTips = 0;
    QStringList newStatuses;

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString &service) { items.append(service); }

    void noteNewIcon() { ++newIcons; }
    void noteNewToolTip() { ++newToolTips; }
    void noteNewStatus(const QString &status) { newStatuses.append(status); }

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    void call(const char *method, const QVariantList &arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(items.last(), QStringLiteral("/StatusNotifierItem"),
                                           itemInterface(), QString::fromLatin1(method));
        message.setArguments(arguments);
        _program.connection().asyncCall(message);
    }

    OtherProgram _program;
    bool _panel;
};

} // namespace barquell::test
