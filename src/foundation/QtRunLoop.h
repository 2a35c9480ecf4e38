#pragma once

#include "foundation/RunLoop.h"

#include <QObject>

namespace barquell {

/// The run loop on Qt's event loop; needs a QCoreApplication before anything scheduled can run.
class QtRunLoop final : public RunLoop {
public:
    void performAsync(Task task) override;
    void performAfter(std::chrono::milliseconds delay, Task task) override;
    std::unique_ptr<Timer> scheduleOnce(std::chrono::milliseconds delay, Task task) override;
    std::unique_ptr<Timer> scheduleRepeating(std::chrono::milliseconds interval, Task task) override;
    QDateTime wallClock() const override { return QDateTime::currentDateTimeUtc(); }

private:
    QObject _context; // what is scheduled goes away with the loop
};

} // namespace barquell
