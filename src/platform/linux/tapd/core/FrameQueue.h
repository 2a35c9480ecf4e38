#pragma once

#include "platform/linux/tapd/core/BarRelay.h"

#include <array>

namespace barquell::tapd {

/// A frame that waits for its verdict.
struct PendingFrame {
    std::uint64_t number = 0;
    Time sent;
    BarRelay *bar = nullptr; ///< nullptr where it was unplugged meanwhile
    evdev::Contacts contacts;
    std::int64_t time = 0;
    std::optional<std::int32_t> timestamp;
};

/// The frames that are out, oldest first. Places are used again, so that a queue that has once been as long
/// does not allocate. One thread.
class FrameQueue {
public:
    /// More than a bar sends in the time that a client has for its answer.
    static constexpr std::size_t kRoom = 128;

    /// A read brings 64 events at most, a frame has two at least, and lost events add one.
    static constexpr std::size_t kRoomForOneRead = 33;

    FrameQueue();

    bool isEmpty() const { return _count == 0; }
    bool isFull() const { return _count == kRoom; }
    /// Is there no room left for what a single read of a bar can bring?
    bool isCrowded() const { return _count + kRoomForOneRead > kRoom; }

    /// Not of an empty queue.
    PendingFrame &front() { return _frames.at(_first); }
    const PendingFrame &front() const { return _frames.at(_first); }
    void pop();

    /// A place at the end, to be filled in. Not of a full queue.
    PendingFrame &push();

    void forget(const BarRelay &bar);

private:
    std::array<PendingFrame, kRoom> _frames;
    std::size_t _first = 0;
    std::size_t _count = 0;
};

} // namespace barquell::tapd
