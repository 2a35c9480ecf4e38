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

NotifierWatcher::NotifierWatcher(MessageBus &bus) : _bus(bus) {
    connect(&bus, &MessageBus::connected, this, &NotifierWatcher::enterBus);
    connect(&bus, &MessageBus::disconnected, this, &NotifierWatcher::leaveBus);
    if (bus.isConnected()) {
        enterBus();
    }
}

void NotifierWatcher::enterBus() {
    QDBusConnection connection = _bus.connection();
    _owners = std::make_unique<QDBusServiceWatcher>(service(), connection,
                                                    QDBusServiceWatcher::WatchForOwnerChange);
    connect(_owners.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { ownerChanged(owner); });
    for (const char *signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        connection.connect(service(), path(), interface(), QLatin1String(signal), this, SLOT(askForHost()));
    }
    askForOwner();
}

void NotifierWatcher::leaveBus() {
    _owners.reset();
    _owner.clear();
    _known = _hasHost = false;
    Q_EMIT changed();
}

void NotifierWatcher::askForOwner() {
    const QDBusMessage question = MessageBus::question(QStringLiteral("GetNameOwner"), {service()});
    whenFinished(_bus.connection().asyncCall(question), _owners.get(),
                 [this](const QDBusPendingReply<QString> &answer) {
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
    whenFinished(_bus.connection().asyncCall(question), _owners.get(),
                 [this](const QDBusPendingReply<QVariant> &answer) {
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
