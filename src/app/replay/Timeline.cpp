#include "app/replay/Timeline.h"

#include <tuple>

namespace barquell::replay {

bool Timeline::Cursor::operator>(const Cursor &other) const {
    return std::tie(time, device) > std::tie(other.time, other.device);
}

Timeline::Timeline(const std::vector<recording::RecordedDevice> &devices) : _devices(devices) {
    for (std::size_t i = 0; i < devices.size(); ++i) {
        if (!devices.at(i).events.empty()) {
            _next.push({devices.at(i).events.front().time, i, 0});
        }
    }
}

Timeline::Step Timeline::next() {
    const Cursor cursor = _next.top();
    _next.pop();
    const auto &events = _devices.at(cursor.device).events;
    if (cursor.index + 1 < events.size()) {
        _next.push({events.at(cursor.index + 1).time, cursor.device, cursor.index + 1});
    }
    return {cursor.device, events.at(cursor.index)};
}

} // namespace barquell::replay
