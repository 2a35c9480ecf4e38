#pragma once

#include "platform/DistributedNotifications.h"

#include <vector>

namespace barquell {

/// Distributed notifications that stay in this process, for places without a bus. What is posted arrives
/// later from the run loop, as it does between processes.
class InProcessNotifications final : public DistributedNotifications {
public:
    void post(const QString &name) override;
    std::unique_ptr<Observation> observe(const QString &name, Handler handler) override;

private:
    class Entry;

    std::vector<std::weak_ptr<Entry>> _entries;
};

} // namespace barquell
