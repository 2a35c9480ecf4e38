#pragma once

#include "platform/DistributedNotifications.h"

namespace barquell {

/// The distributed notification center. NSDistributedNotificationCenter is the same center by another name,
/// so everything goes through CoreFoundation's.
class MacDistributedNotifications final : public DistributedNotifications {
public:
    void post(const QString &name) override;
    std::unique_ptr<Observation> observe(const QString &name, Handler handler) override;
};

} // namespace barquell
