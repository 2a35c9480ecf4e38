#pragma once

#include "platform/linux/tapd/core/BarRelay.h"

#include <memory>

namespace barquell::tapd {

/// The bars that are plugged in, wanted all together or not at all. One thread.
class Bars {
public:
    static constexpr std::size_t kMaximum = 4;

    Bars(FrameSink &sink, Log &log) : _sink(sink), _log(log) {}

    /// False where there are too many; the port is then not kept.
    bool add(const evdev::DeviceDescription &bar, BarPort &port, Time now);
    void remove(const BarPort &port);

    /// nullptr for a port that is not kept.
    BarRelay *find(const BarPort &port) const;

    void setWanted(bool wanted, Time now);

    /// Those that are wanted and have failed are tried anew.
    void retry(Time now);

    std::uint16_t known() const { return static_cast<std::uint16_t>(_bars.size()); }
    std::uint16_t grabbed() const;

private:
    FrameSink &_sink;
    Log &_log;
    std::vector<std::unique_ptr<BarRelay>> _bars;
    bool _wanted = false;
};

} // namespace barquell::tapd
