#pragma once

#include "platform/linux/session/MessageBus.h"
#include "platform/linux/session/RunningCopy.h"

namespace barquell {

/// Who else runs. Each copy of the program queues for one name on the session bus, so all of them can be
/// counted; where there is no bus, a mark in the file system tells whether there is another at all. Main
/// thread only.
class RunningCopies {
public:
    /// The bus must outlive this.
    explicit RunningCopies(const MessageBus &bus) : _bus(bus) {}

    /// Lets this process be counted; again whenever the bus has come back.
    void enter();

    /// How many run, this process included once it has entered. Of other applications those are known that
    /// hold a name of theirs on the bus.
    int count(const QString &bundleIdentifier);

private:
    std::optional<int> queuedOwners(const QString &name) const;

    const MessageBus &_bus;
    RunningCopy _mark;
    bool _entered = false;
};

} // namespace barquell
