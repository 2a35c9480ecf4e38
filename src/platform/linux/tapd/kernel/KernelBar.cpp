#include "platform/linux/tapd/kernel/KernelBar.h"

#include "platform/linux/tapd/core/CloneDescription.h"
#include "platform/linux/tapd/kernel/DeviceQuery.h"

#include <ctime>
#include <poll.h>

namespace barquell::tapd {

KernelBar::KernelBar(FileDescriptor node, evdev::DeviceDescription description, CloneYard &yard)
    : _node(std::move(node)), _description(std::move(description)), _yard(&yard) {
    int clock = CLOCK_MONOTONIC;
    ::ioctl(_node.get(), EVIOCSCLOCKID, &clock);
}

std::optional<BarState> KernelBar::state() {
    // A frame that comes between the last read and the question would be told twice, the second time perhaps
    // with a slot that is not its own. A bar reports every few milliseconds, so a second try meets silence.
    constexpr int kTries = 3;
    std::optional<BarState> state;
    bool eventsWaited = false;
    for (int i = 0; i < kTries; ++i) {
        eventsWaited = forgetEvents(_node.get()) || eventsWaited;
        state = heldSlots(_node.get(), _description);
        pollfd more{_node.get(), POLLIN, 0};
        if (::poll(&more, 1, 0) == 0) {
            break;
        }
    }
    if (state) {
        state->eventsWaited = eventsWaited;
    }
    return state;
}

bool KernelBar::grab() {
    _grab = Grab::of(_node.get());
    return _grab.has_value();
}

bool KernelBar::createClone() {
    _clone = UinputDevice::create(cloneDescription(_description), kClonePhys);
    return _clone.has_value();
}

void KernelBar::destroyClone() {
    if (_clone) {
        _yard->retire(std::move(*_clone), std::chrono::steady_clock::now());
        _clone.reset();
    }
}

bool KernelBar::sendToClone(std::span<const evdev::InputEvent> events) {
    return _clone && _clone->write(events);
}

} // namespace barquell::tapd
