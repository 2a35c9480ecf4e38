#include "recording/Intake.h"

#include <limits>
#include <utility>

namespace barquell::recording {

namespace {

constexpr std::int64_t kMicroseconds = 1'000'000;
constexpr std::int64_t kMaximumSeconds = std::int64_t{1} << 31;

} // namespace

bool Intake::beginDevice(std::size_t line) {
    if (deviceCount() == kMaximumDevices) {
        return complain("too many devices", line);
    }
    _recording.devices.emplace_back();
    return true;
}

void Intake::declareCode(std::size_t type, std::size_t code) {
    evdev::DeviceDescription &device = description();
    if (type == evdev::kEvAbs) {
        if (code <= evdev::kAbsMax) {
            device.axes.try_emplace(static_cast<std::uint16_t>(code));
        }
    } else if (type != evdev::kEvSyn && type <= evdev::kEvMax && code <= evdev::kKeyMax) {
        auto &codes =
            type == evdev::kEvKey ? device.keys : device.otherCodes[static_cast<std::uint16_t>(type)];
        codes.set(code);
    }
}

bool Intake::add(const RawEvent &event, std::size_t line) {
    if (event.seconds < 0 || event.microseconds < 0) {
        return complain("negative time", line);
    }
    if (event.seconds > kMaximumSeconds || event.microseconds >= kMicroseconds) {
        return complain("time out of range", line);
    }
    if (!std::in_range<std::uint16_t>(event.type) || !std::in_range<std::uint16_t>(event.code)) {
        return complain("type or code out of range", line);
    }
    if (!std::in_range<std::int32_t>(event.value)) {
        return complain("value out of range", line);
    }
    if (_eventCount == kMaximumEvents) {
        return complain("too many events", line);
    }
    std::vector<evdev::InputEvent> &events = _recording.devices.back().events;
    std::int64_t time = event.seconds * kMicroseconds + event.microseconds;
    if (!events.empty() && time < events.back().time) {
        complain("time runs backwards", line);
        time = events.back().time;
    }
    events.push_back({time, static_cast<std::uint16_t>(event.type), static_cast<std::uint16_t>(event.code),
                      static_cast<std::int32_t>(event.value)});
    ++_eventCount;
    return true;
}

bool Intake::complain(std::string_view what) {
    if (_recording.complaint.empty()) {
        _recording.complaint = what;
    }
    return false;
}

bool Intake::complain(std::string_view what, std::size_t line) {
    if (_recording.complaint.empty()) {
        _recording.complaint.append(what).append(" at line ").append(std::to_string(line));
    }
    return false;
}

Recording Intake::take() {
    if (!hasDevice()) {
        complain("no device found");
    }
    return std::move(_recording);
}

} // namespace barquell::recording
