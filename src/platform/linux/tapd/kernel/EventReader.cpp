#include "platform/linux/tapd/kernel/EventReader.h"

#include <cerrno>
#include <linux/input.h>
#include <unistd.h>

namespace barquell::tapd {

ReadResult readEvents(int node, EventBatch &batch) {
    std::array<input_event, std::tuple_size_v<EventBatch>> raw;
    const ssize_t bytes = ::read(node, raw.data(), sizeof raw);
    if (bytes <= 0) {
        return {{}, bytes == 0 || (errno != EAGAIN && errno != EINTR)};
    }
    const std::size_t count = static_cast<std::size_t>(bytes) / sizeof(input_event);
    for (std::size_t i = 0; i < count; ++i) {
        const input_event &event = raw.at(i);
        const std::int64_t time = std::int64_t{event.input_event_sec} * 1'000'000 + event.input_event_usec;
        batch.at(i) = {time, event.type, event.code, event.value};
    }
    return {std::span(batch).first(count), false};
}

bool forgetEvents(int node) {
    // The kernel keeps eight packets (drivers/input/evdev.c, evdev_compute_buffer_size); with 256 slots of a
    // dozen axes each that makes 32768 events.
    constexpr int kMaximumReads = 512;
    EventBatch forgotten;
    int reads = 0;
    while (reads < kMaximumReads && !readEvents(node, forgotten).events.empty()) {
        ++reads;
    }
    return reads > 0;
}

} // namespace barquell::tapd
