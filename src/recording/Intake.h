#pragma once

#include "recording/Recording.h"

#include <cstdint>
#include <string_view>

namespace barquell::recording {

/// An event as it stands in a file, before any of it is known to be in range.
struct RawEvent {
    std::int64_t seconds = 0;
    std::int64_t microseconds = 0;
    std::int64_t type = 0;
    std::int64_t code = 0;
    std::int64_t value = 0;
};

/// Gathers what a reader finds, by the rules that are the same for every format. After a call that returned
/// false there is a complaint and the reader is to stop.
class Intake {
public:
    bool beginDevice(std::size_t line);
    void dropDevice() { _recording.devices.pop_back(); }

    [[nodiscard]] bool hasDevice() const { return !_recording.devices.empty(); }
    [[nodiscard]] std::size_t deviceCount() const { return _recording.devices.size(); }
    /// The device that is being read.
    evdev::DeviceDescription &description() { return _recording.devices.back().description; }
    void declareCode(std::size_t type, std::size_t code);

    bool add(const RawEvent &event, std::size_t line);

    /// Only the first complaint is kept. Always false, for its callers to return.
    bool complain(std::string_view what);
    bool complain(std::string_view what, std::size_t line);

    Recording take();

private:
    Recording _recording;
    std::size_t _eventCount = 0;
};

} // namespace barquell::recording
