#pragma once

#include "platform/linux/session/MessageBus.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>

#include <memory>

namespace barquell {

/// The session's register of status items, org.kde.StatusNotifierWatcher: whether it is there, and whether a
/// panel (a "host") shows what it holds. Follows both, and the bus, by event and never waits for the
/// register. Main thread only.
class NotifierWatcher final : public QObject {
    Q_OBJECT

public:
    /// The bus must outlive the watcher.
    explicit NotifierWatcher(MessageBus &bus);

    const MessageBus &bus() const { return _bus; }

    /// It has been found out whether the register is there; without a bus it is not.
    bool isKnown() const { return _known || !_bus.isConnected(); }
    bool hasHost() const { return _hasHost; }

    /// Who keeps the register now; empty without one. A new owner knows no items yet.
    const QString &owner() const { return _owner; }

    /// Tells the register of an item by its bus name, over the item's own connection.
    static void registerItem(const QDBusConnection &connection, const QString &service);

Q_SIGNALS:
    /// Any of the answers above may have changed.
    void changed();

private Q_SLOTS:
    void askForHost();

private:
    void enterBus();
    void leaveBus();
    void askForOwner();
    void ownerChanged(const QString &owner);
    void finish(bool hasHost);

    MessageBus &_bus;
    std::unique_ptr<QDBusServiceWatcher> _owners; // of this connection, as are the answers waited for
    QString _owner;
    bool _known = false;
    bool _hasHost = false;
};

} // namespace barquell
