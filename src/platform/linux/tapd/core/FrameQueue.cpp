#include "platform/linux/tapd/core/FrameQueue.h"

namespace barquell::tapd {

FrameQueue::FrameQueue() {
    for (PendingFrame &frame : _frames) {
        frame.contacts.reserve(16); // a bar that uses more slots allocates, once a place
    }
}

PendingFrame &FrameQueue::push() {
    return _frames.at((_first + _count++) % kRoom);
}

void FrameQueue::pop() {
    _first = (_first + 1) % kRoom;
    --_count;
}

void FrameQueue::forget(const BarRelay &bar) {
    for (PendingFrame &frame : _frames) {
        if (frame.bar == &bar) {
            frame.bar = nullptr;
        }
    }
}

} // namespace barquell::tapd
