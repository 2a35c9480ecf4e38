#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace barquell {

/// The one owner of a connection to a message bus, which may be absent, come late, go away and come back;
/// each change is said in one line. What was registered or matched on a connection goes with it: whoever uses
/// the bus does so from connected(), and once at the start if it isConnected() already. Main thread only.
class MessageBus : public QObject {
    Q_OBJECT
public:
    /// Connects at once. The name is for the log ("session bus").
    MessageBus(QString name, QString address);
    ~MessageBus() override;
    Q_DISABLE_COPY_MOVE(MessageBus)

    bool isConnected() const { return connection().isConnected(); }

    /// The connection of this moment; one that is not connected where there is no bus.
    QDBusConnection connection() const { return QDBusConnection(_connectionName); }

    /// Where the bus listens, for whoever needs a connection of its own.
    const QString &address() const { return _address; }

    /// Where the user's bus listens; empty where the session has none.
    static QString sessionAddress();

    static QString systemAddress();

    /// A question to the bus itself.
    static QDBusMessage question(const QString &member, const QVariantList &arguments = {});

    /// The reply, waited for no longer than a bus that works ever takes.
    QDBusMessage call(const QDBusMessage &message) const;

Q_SIGNALS:
    void connected();
    void disconnected();

private Q_SLOTS:
    void lose();

private:
    bool connectNow();
    void waitForBus();
    void socketMayBeThere();
    void tryAgain();

    const QString _name;
    const QString _address;
    QString _connectionName;
    QFileSystemWatcher _folder; // of the bus's socket, watched while there is no bus
    QTimer _retry;
    int _triesLeft = 0;
};

/// The bus of the user's session.
class SessionBus final : public MessageBus {
public:
    SessionBus() : MessageBus(QStringLiteral("session bus"), sessionAddress()) {}
};

} // namespace barquell
