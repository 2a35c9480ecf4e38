#pragma once

#include "app/replay/JsonReport.h"

#include <optional>
#include <ostream>
#include <string>

namespace barquell::replay {

/// Writes a replay as a table for a person; events that follow one another with the same outcome share a row.
class TableReport final : public ReplayListener {
public:
    explicit TableReport(std::ostream &out) : _out(out) {}

    void event(const ReplayedEvent &event) override;
    void stateChange(const ReplayedStateChange &change) override;
    void logged(const QString &line) override;

    void finish();

private:
    struct Row {
        std::int64_t first;
        std::int64_t last;
        std::uint64_t count;
        EventType type;
        ModifierFlags flags;
        int touching;
        bool passed;
        Reason reason;

        bool continues(const Row &row) const;
    };

    void writeHead();
    void writeRow();
    void writeLine(std::int64_t time, const std::string &text);

    std::ostream &_out;
    ReplaySummary _summary;
    std::optional<Row> _row;
    std::int64_t _time = 0;
    bool _headWritten = false;
};

} // namespace barquell::replay
