#pragma once

#include <QLockFile>

#include <optional>

namespace barquell {

/// The mark of the one running copy of this user, which other copies and `barquell status` see. A copy that
/// died leaves no mark that counts.
class RunningCopy {
public:
    RunningCopy();

    /// False where another copy runs already.
    bool claim();

    /// The process that runs, if any does.
    static std::optional<qint64> processId();

private:
    QLockFile _lock;
};

} // namespace barquell
