#pragma once

#include <QLockFile>

#include <optional>

namespace barquell {

/// The mark of the one running copy of this user, which other copies and `barquell status` see. A copy that
/// died leaves no mark that counts. Main thread only.
class RunningCopy {
public:
    enum class Claim {
        Ours,
        Taken,      ///< another copy runs
        Impossible, ///< no mark can be left here; a second copy would not be noticed
    };

    RunningCopy();

    Claim claim();

    /// The process that runs, if any does. Leaves the mark alone.
    static std::optional<qint64> processId();

private:
    QLockFile _lock;
};

} // namespace barquell
