#include "platform/linux/session/MessageBus.h"

#include "foundation/Log.h"

#include <QFileInfo>
#include <QUrl>

namespace barquell {

using namespace std::chrono_literals;

namespace {

// A new bus binds its socket a moment before it listens.
constexpr auto kBetweenTries = 100ms;
constexpr int kTries = 10;
constexpr int kLongestCall = 2000; // milliseconds

QString nextConnectionName() {
    static int last = 0;
    return QStringLiteral("barquell-%1").arg(++last);
}

/// The socket's file; empty where the address has none that could be watched.
QString socketPath(const QString &address) {
    for (const QString &each : address.split(QLatin1Char(';'))) {
        const QString transport = QStringLiteral("unix:");
        if (!each.startsWith(transport)) {
            continue;
        }
        for (const QString &entry : each.mid(transport.size()).split(QLatin1Char(','))) {
            const QString key = QStringLiteral("path=");
            if (entry.startsWith(key)) {
                return QUrl::fromPercentEncoding(entry.mid(key.size()).toUtf8());
            }
        }
    }
    return {};
}

} // namespace

MessageBus::MessageBus(QString name, QString address) : _name(std::move(name)), _address(std::move(address)) {
    _retry.setSingleShot(true);
    connect(&_retry, &QTimer::timeout, this, &MessageBus::tryAgain);
    connect(&_folder, &QFileSystemWatcher::directoryChanged, this, &MessageBus::socketMayBeThere);
    if (!connectNow()) {
        log(QStringLiteral("No %1; other programs can not be heard").arg(_name));
        waitForBus();
    }
}

MessageBus::~MessageBus() {
    QDBusConnection::disconnectFromBus(_connectionName);
}

QString MessageBus::sessionAddress() {
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty()) {
        return address;
    }
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QString() : QStringLiteral("unix:path=%1/bus").arg(folder);
}

QString MessageBus::systemAddress() {
    return qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS",
                                QStringLiteral("unix:path=/run/dbus/system_bus_socket"));
}

QDBusMessage MessageBus::question(const QString &member, const QVariantList &arguments) {
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage message =
        QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus, member);
    message.setArguments(arguments);
    return message;
}

QDBusMessage MessageBus::call(const QDBusMessage &message) const {
    return connection().call(message, QDBus::Block, kLongestCall);
}

bool MessageBus::connectNow() {
    if (_address.isEmpty()) {
        return false;
    }
    _connectionName = nextConnectionName();
    QDBusConnection fresh = QDBusConnection::connectToBus(_address, _connectionName);
    if (!fresh.isConnected()) {
        QDBusConnection::disconnectFromBus(_connectionName);
        return false;
    }
    fresh.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                  SLOT(lose()));
    return true;
}

void MessageBus::lose() {
    log(QStringLiteral("The %1 went away").arg(_name));
    QDBusConnection::disconnectFromBus(_connectionName);
    waitForBus();
    Q_EMIT disconnected();
}

void MessageBus::waitForBus() {
    const QString path = socketPath(_address);
    if (!path.isEmpty() && QFileInfo::exists(QFileInfo(path).path())) {
        _folder.addPath(QFileInfo(path).path());
        socketMayBeThere(); // one whose socket another program keeps open is there again at once
    }
}

void MessageBus::socketMayBeThere() {
    _triesLeft = kTries;
    if (!_retry.isActive()) {
        _retry.start(kBetweenTries);
    }
}

void MessageBus::tryAgain() {
    if (isConnected() || !QFileInfo::exists(socketPath(_address))) {
        return;
    }
    if (!connectNow()) {
        if (--_triesLeft > 0) {
            _retry.start(kBetweenTries);
        }
        return;
    }
    _folder.removePaths(_folder.directories());
    log(QStringLiteral("The %1 is there").arg(_name));
    Q_EMIT connected();
}

} // namespace barquell
