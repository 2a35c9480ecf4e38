#pragma once

#include "platform/Observation.h"

#include <QString>

#include <functional>
#include <memory>

namespace barquell {

/// Notifications by name between all processes of the session, from any sender, the own process included.
/// macOS: CFNotificationCenterGetDistributedCenter and NSDistributedNotificationCenter.
class DistributedNotifications {
public:
    using Handler = std::function<void(const QString &name)>;

    virtual ~DistributedNotifications() = default;

    /// Without payload, delivered at once to every listener. A failure is the back end's to log.
    /// macOS: CFNotificationCenterPostNotification(center, name, nullptr, nullptr, true).
    virtual void post(const QString &name) = 0;

    /// Calls the handler later, from the main run loop, for each post of the name; a post made before this
    /// call is not seen. macOS: CFNotificationCenterAddObserver(center, …, name, nullptr,
    /// CFNotificationSuspensionBehaviorDeliverImmediately); ending it is CFNotificationCenterRemoveObserver.
    [[nodiscard]] virtual std::unique_ptr<Observation> observe(const QString &name, Handler handler) = 0;

protected:
    DistributedNotifications() = default;
    DistributedNotifications(const DistributedNotifications &) = default;
    DistributedNotifications &operator=(const DistributedNotifications &) = default;
};

} // namespace barquell
