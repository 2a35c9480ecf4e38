#pragma once

#include "platform/DistributedNotifications.h"
#include "platform/linux/session/MessageBus.h"
#include "platform/linux/session/TurnQueue.h"

#include <vector>

namespace barquell {

/// Notifications as signals of the session bus: "a.b.c" is the signal "c" of interface "a.b" from the path
/// "/", without arguments, whoever sends it. Where there is no bus, and for a name that no signal can have,
/// they stay in this process.
///
/// A listener is called once for each signal, one signal a turn of the run loop: a burst of thousands holds
/// nothing else up.
class BusNotifications final : public QObject, public DistributedNotifications {
    Q_OBJECT
public:
    /// The bus must outlive this.
    explicit BusNotifications(MessageBus &bus);
    ~BusNotifications() override;
    Q_DISABLE_COPY_MOVE(BusNotifications)

    void post(const QString &name) override;
    std::unique_ptr<Observation> observe(const QString &name, Handler handler) override;

private Q_SLOTS:
    void receive(const QDBusMessage &signal);

private:
    struct Listener;
    class Listening;

    bool listensFor(const QString &name) const;
    void match(const QString &name);
    void matchAll();
    void unmatch(const QString &name);
    void deliverLater(const QString &name);

    MessageBus &_bus;
    std::vector<std::weak_ptr<Listener>> _listeners;
    TurnQueue _pending;
};

} // namespace barquell
