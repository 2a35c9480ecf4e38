#pragma once

#include "app/replay/ReplayListener.h"

#include <cstdint>
#include <ostream>

namespace barquell::replay {

/// What a replay did, counted.
struct ReplaySummary {
    std::uint64_t gestures = 0;
    std::uint64_t passed = 0; ///< gestures that went on
    std::uint64_t swallowed = 0;
    std::uint64_t stateChanges = 0;

    void count(const ReplayedEvent &event);
};

/// Writes a replay as JSON, one object a line.
class JsonReport final : public ReplayListener {
public:
    explicit JsonReport(std::ostream &out) : _out(out) {}

    void event(const ReplayedEvent &event) override;
    void stateChange(const ReplayedStateChange &change) override;
    /// Said by the objects already.
    void logged(const QString & /*line*/) override {}

    void finish();

private:
    std::ostream &_out;
    ReplaySummary _summary;
};

} // namespace barquell::replay
