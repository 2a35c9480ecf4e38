#pragma once

#include "platform/DistributedNotifications.h"
#include "platform/linux/session/LoginSession.h"
#include "platform/linux/session/MessageBus.h"

#include <QDBusServiceWatcher>
#include <QSet>

namespace barquell {

/// Whether a screen saver or lock covers the screen, posted as "com.apple.shieldWindowRaised" and
/// "com.apple.shieldWindowLowered": edges only, whoever of several says so first and last. The screen savers
/// of the desktops are heard on the session's bus, the login manager's lock on the system's. One that goes
/// away while it covers the screen covers it no more. Main thread only.
class ScreenShield final : public QObject {
    Q_OBJECT
public:
    /// All must outlive this. A screen that is covered already is posted too, so make it when the listeners
    /// are there.
    ScreenShield(MessageBus &sessionBus, MessageBus &systemBus, DistributedNotifications &notifications);

private Q_SLOTS:
    void saverChanged(bool active, const QDBusMessage &signal);

private:
    void listen();
    void lose();
    void ask(const QString &saver);
    void set(const QString &source, bool covers);

    MessageBus &_bus;
    DistributedNotifications &_notifications;
    QDBusServiceWatcher _savers;
    QSet<QString> _covering;
    LoginSession _login;
};

} // namespace barquell
