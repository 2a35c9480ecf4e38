#pragma once

#include "platform/linux/session/MessageBus.h"

#include <functional>

namespace barquell {

/// Whether the login manager holds this session for locked: its LockedHint, which the desktop's lock sets
/// when it covers the screen and takes back when the user is let in. (The manager's Lock signal is only a
/// wish, which nobody may follow.) Main thread only.
class LoginSession final : public QObject {
    Q_OBJECT
public:
    using Handler = std::function<void(bool locked)>;

    /// The bus, the system's, must outlive this. The handler hears each answer and change, equal or not; a
    /// session that cannot be asked is not locked.
    LoginSession(MessageBus &bus, Handler onLocked);

private Q_SLOTS:
    void propertiesChanged(const QString &interface, const QVariantMap &changed,
                           const QStringList &invalidated);

private:
    using Answer = std::function<void(const QVariant &value)>;

    void findSession();
    void follow(const QString &path);
    void askLocked();
    void ask(const QString &path, const QString &interface, const QString &member,
             const QVariantList &arguments, Answer answer);

    MessageBus &_bus;
    Handler _onLocked;
    QString _path;
};

} // namespace barquell
