#pragma once

#include "recording/Recording.h"

#include <cstddef>
#include <queue>
#include <vector>

namespace barquell::replay {

/// Walks the events of several devices as one stream in the order of time. At equal times the device that
/// stands first comes first, and the events of one device keep their order.
class Timeline {
public:
    struct Step {
        std::size_t device;
        const evdev::InputEvent &event;
    };

    /// The devices must outlive the timeline.
    explicit Timeline(const std::vector<recording::RecordedDevice> &devices);

    bool atEnd() const { return _next.empty(); }
    Step next();

private:
    struct Cursor {
        std::int64_t time;
        std::size_t device;
        std::size_t index;

        bool operator>(const Cursor &other) const;
    };

    const std::vector<recording::RecordedDevice> &_devices;
    std::priority_queue<Cursor, std::vector<Cursor>, std::greater<>> _next;
};

} // namespace barquell::replay
