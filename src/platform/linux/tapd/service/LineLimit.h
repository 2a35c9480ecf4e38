#pragma once

#include <chrono>

namespace barquell::tapd {

/// How many lines may be logged: a burst, and then a steady few. Clients and devices decide what happens, so
/// it is they who would fill the log. One thread.
class LineLimit {
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr int kBurst = 50;
    static constexpr std::chrono::seconds kOneMoreAfter{2};

    bool admits(Time now);

    /// How many lines were not admitted since this was last asked.
    int takeLeftOut();

private:
    int _room = kBurst;
    int _leftOut = 0;
    Time _lastRefill;
};

} // namespace barquell::tapd
