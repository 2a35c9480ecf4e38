#include "platform/linux/session/ScreenShield.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace barquell {

namespace {

const QString kMember = QStringLiteral("ActiveChanged");
const QString kLogin = QStringLiteral("login");

/// Services and, by the same name, interfaces.
QStringList savers() {
    return {QStringLiteral("org.freedesktop.ScreenSaver"), QStringLiteral("org.gnome.ScreenSaver"),
            QStringLiteral("org.xfce.ScreenSaver"), QStringLiteral("org.mate.ScreenSaver"),
            QStringLiteral("org.cinnamon.ScreenSaver")};
}

QString pathOf(const QString &saver) {
    return QLatin1Char('/') + QString(saver).replace(QLatin1Char('.'), QLatin1Char('/'));
}

} // namespace

ScreenShield::ScreenShield(MessageBus &sessionBus, MessageBus &systemBus,
                           DistributedNotifications &notifications)
    : _bus(sessionBus), _notifications(notifications),
      _login(systemBus, [this](bool locked) { set(kLogin, locked); }) {
    _savers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    _savers.setWatchedServices(savers());
    connect(&_savers, &QDBusServiceWatcher::serviceUnregistered, this,
            [this](const QString &saver) { set(saver, false); });
    connect(&_bus, &MessageBus::connected, this, &ScreenShield::listen);
    connect(&_bus, &MessageBus::disconnected, this, &ScreenShield::lose);
    if (_bus.isConnected()) {
        listen();
    }
}

void ScreenShield::listen() {
    QDBusConnection connection = _bus.connection();
    _savers.setConnection(connection);
    for (const QString &saver : savers()) {
        // Only from who owns the saver's name, from whatever path: some emit from two.
        connection.connect(saver, QString(), saver, kMember, this, SLOT(saverChanged(bool, QDBusMessage)));
        ask(saver);
    }
}

void ScreenShield::ask(const QString &saver) {
    QDBusMessage question =
        QDBusMessage::createMethodCall(saver, pathOf(saver), saver, QStringLiteral("GetActive"));
    question.setAutoStartService(false);
    auto *answer = new QDBusPendingCallWatcher(_bus.connection().asyncCall(question), this); // NOLINT: Qt's
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, saver, answer] {
        answer->deleteLater();
        const QDBusPendingReply<bool> active = *answer;
        if (!active.isError() && active.value()) {
            set(saver, true);
        }
    });
}

void ScreenShield::saverChanged(bool active, const QDBusMessage &signal) {
    if (signal.signature() == QLatin1String("b")) { // the library would accept more arguments too
        set(signal.interface(), active);
    }
}

void ScreenShield::lose() {
    for (const QString &saver : savers()) {
        set(saver, false);
    }
}

void ScreenShield::set(const QString &source, bool covers) {
    const bool before = !_covering.isEmpty();
    if (covers) {
        _covering.insert(source);
    } else {
        _covering.remove(source);
    }
    if (before == _covering.isEmpty()) {
        _notifications.post(before ? QStringLiteral("com.apple.shieldWindowLowered")
                                   : QStringLiteral("com.apple.shieldWindowRaised"));
    }
}

} // namespace barquell
