#include "platform/linux/statusbar/NotifierWatcher.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace barquell {

namespace {

QString service() {
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

QString path() {
    return QStringLiteral("/StatusNotifierWatcher");
}

QString interface() {
    return service();
}

/// Hands the finished call over, later.
template <typename Handler>
void whenFinished(const QDBusPendingCall &call, QObject *receiver, Handler handler) {
    // Goes with the receiver or the answer.
    auto *waiting = new QDBusPendingCallWatcher(call, receiver); // NOLINT(cppcoreguidelines-owning-memory)
    QObject::connect(waiting, &QDBusPendingCallWatcher::finished, receiver, [waiting, handler] {
        waiting->deleteLater();
        handler(*waiting);
    });
}

} // namespace

NotifierWatcher::NotifierWatcher(const QDBusConnection &bus)
    : _bus(bus), _owners(service(), bus, QDBusServiceWatcher::WatchForOwnerChange) {
    if (!_bus.isConnected()) {
        return;
    }
    connect(&_owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { ownerChanged(owner); });
    for (const char *signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        _bus.connect(service(), path(), interface(), QLatin1String(signal), this, SLOT(askForHost()));
    }
    askForOwner();
}

void NotifierWatcher::askForOwner() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetNameOwner"));
    question << service();
    whenFinished(_bus.asyncCall(question), this, [this](const QDBusPendingReply<QString> &answer) {
        ownerChanged(answer.isError() ? QString() : answer.value());
    });
}

void NotifierWatcher::ownerChanged(const QString &owner) {
    _owner = owner;
    if (owner.isEmpty()) {
        finish(false);
    } else {
        askForHost();
    }
}

void NotifierWatcher::askForHost() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        service(), path(), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << interface() << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    whenFinished(_bus.asyncCall(question), this, [this](const QDBusPendingReply<QVariant> &answer) {
        finish(!_owner.isEmpty() && !answer.isError() && answer.value().toBool());
    });
}

void NotifierWatcher::finish(bool hasHost) {
    _known = true;
    _hasHost = hasHost;
    Q_EMIT changed();
}

void NotifierWatcher::registerItem(const QDBusConnection &connection, const QString &service) {
    QDBusMessage call = QDBusMessage::createMethodCall(barquell::service(), path(), interface(),
                                                       QStringLiteral("RegisterStatusNotifierItem"));
    call << service;
    call.setAutoStartService(false);
    connection.asyncCall(call);
}

} // namespace barquell
