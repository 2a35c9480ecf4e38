#pragma once

#include "platform/Event.h"

#import <AppKit/AppKit.h>

namespace barquell {

/// An event of a tap, for the length of its callback. The NSEvent around it is made by the first question
/// that needs one.
class MacEvent final : public Event {
public:
    explicit MacEvent(CGEventRef event) : _event(event) {}

    ModifierFlags flags() const override;
    void setFlags(ModifierFlags flags) override;
    std::int64_t sourceProcessId() const override;
    int gestureKind() const override;
    int touchCount(TouchPhases phases) const override;

private:
    NSEvent *wrapper() const;

    CGEventRef _event;
    mutable NSEvent *_wrapper = nil;
};

} // namespace barquell
