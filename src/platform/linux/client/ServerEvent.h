#pragma once

#include "platform/linux/protocol/Protocol.h"

namespace barquell {

/// An event as the tap server tells it. What the server re-emits carries no modifiers, so changed flags end
/// here.
class ServerEvent final : public Event {
public:
    /// A frame of touches.
    explicit ServerEvent(const protocol::ServerMessage &frame) : _frame(&frame), _flags(frame.flags) {}

    /// A change of the modifier keys.
    explicit ServerEvent(ModifierFlags flags) : _flags(flags) {}

    ModifierFlags flags() const override { return _flags; }
    void setFlags(ModifierFlags flags) override { _flags = flags; }
    std::int64_t sourceProcessId() const override { return 0; }
    int gestureKind() const override { return kGestureKindDirectTouch; }
    int touchCount(TouchPhases phases) const override {
        return _frame ? protocol::touchCount(*_frame, phases) : 0;
    }

private:
    const protocol::ServerMessage *_frame = nullptr;
    ModifierFlags _flags;
};

} // namespace barquell
