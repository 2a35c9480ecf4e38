#include "platform/linux/session/LoginSession.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace barquell {

namespace {

// org.freedesktop.login1(5)
const QString kService = QStringLiteral("org.freedesktop.login1");
const QString kManagerPath = QStringLiteral("/org/freedesktop/login1");
const QString kManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString kSession = QStringLiteral("org.freedesktop.login1.Session");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");
const QString kLocked = QStringLiteral("LockedHint");

} // namespace

LoginSession::LoginSession(MessageBus &bus, Handler onLocked) : _bus(bus), _onLocked(std::move(onLocked)) {
    connect(&_bus, &MessageBus::connected, this, &LoginSession::findSession);
    connect(&_bus, &MessageBus::disconnected, this, [this] {
        _path.clear();
        _onLocked(false);
    });
    if (_bus.isConnected()) {
        findSession();
    }
}

void LoginSession::findSession() {
    const auto found = [this](const QVariant &path) { follow(path.value<QDBusObjectPath>().path()); };
    // What the bus or the user's manager starts is in no session; "auto" is the user's with the display then.
    const QString id = qEnvironmentVariable("XDG_SESSION_ID");
    ask(kManagerPath, kManager, QStringLiteral("GetSession"), {id.isEmpty() ? QStringLiteral("auto") : id},
        found);
}

void LoginSession::follow(const QString &path) {
    if (path.isEmpty()) {
        return;
    }
    _path = path;
    _bus.connection().connect(kService, path, kProperties, QStringLiteral("PropertiesChanged"), this,
                              SLOT(propertiesChanged(QString, QVariantMap, QStringList)));
    askLocked();
}

void LoginSession::propertiesChanged(const QString &interface, const QVariantMap &changed,
                                     const QStringList &invalidated) {
    if (interface != kSession) {
        return;
    }
    if (const QVariant locked = changed.value(kLocked); locked.typeId() == QMetaType::Bool) {
        _onLocked(locked.toBool());
    } else if (invalidated.contains(kLocked)) {
        askLocked();
    }
}

void LoginSession::askLocked() {
    ask(_path, kProperties, QStringLiteral("Get"), {kSession, kLocked},
        [this](const QVariant &value) { _onLocked(value.value<QDBusVariant>().variant().toBool()); });
}

void LoginSession::ask(const QString &path, const QString &interface, const QString &member,
                       const QVariantList &arguments, Answer answer) {
    QDBusMessage question = QDBusMessage::createMethodCall(kService, path, interface, member);
    question.setArguments(arguments);
    question.setAutoStartService(false);
    auto *pending = new QDBusPendingCallWatcher(_bus.connection().asyncCall(question), this); // NOLINT: Qt's
    connect(pending, &QDBusPendingCallWatcher::finished, this, [pending, answer = std::move(answer)] {
        pending->deleteLater();
        const QDBusMessage reply = pending->reply();
        if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()) {
            answer(reply.arguments().constFirst());
        }
    });
}

} // namespace barquell
