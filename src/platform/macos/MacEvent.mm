#include "platform/macos/MacEvent.h"

#include <IOKit/hidsystem/IOLLEvent.h>

namespace barquell {

// The seam's numbers are the system's; here the system says so itself.
static_assert(kFlagShift == kCGEventFlagMaskShift && kFlagControl == kCGEventFlagMaskControl &&
              kFlagOption == kCGEventFlagMaskAlternate && kFlagCommand == kCGEventFlagMaskCommand &&
              kFlagFn == kCGEventFlagMaskSecondaryFn);
static_assert(kFlagShift == NSEventModifierFlagShift && kFlagControl == NSEventModifierFlagControl &&
              kFlagOption == NSEventModifierFlagOption && kFlagCommand == NSEventModifierFlagCommand);
static_assert(kFlagLeftControl == NX_DEVICELCTLKEYMASK && kFlagLeftShift == NX_DEVICELSHIFTKEYMASK &&
              kFlagRightShift == NX_DEVICERSHIFTKEYMASK && kFlagLeftCommand == NX_DEVICELCMDKEYMASK &&
              kFlagRightCommand == NX_DEVICERCMDKEYMASK && kFlagLeftOption == NX_DEVICELALTKEYMASK &&
              kFlagRightOption == NX_DEVICERALTKEYMASK && kFlagRightControl == NX_DEVICERCTLKEYMASK);
static_assert(static_cast<std::uint32_t>(EventType::FlagsChanged) == kCGEventFlagsChanged &&
              static_cast<std::uint32_t>(EventType::SystemDefined) == NSEventTypeSystemDefined &&
              static_cast<std::uint32_t>(EventType::Gesture) == NSEventTypeGesture &&
              static_cast<std::uint32_t>(EventType::TapDisabledByTimeout) == kCGEventTapDisabledByTimeout &&
              kGestureKindDirectTouch == NSEventTypeDirectTouch && kTouching == NSTouchPhaseTouching);

ModifierFlags MacEvent::flags() const {
    return CGEventGetFlags(_event);
}

void MacEvent::setFlags(ModifierFlags flags) {
    CGEventSetFlags(_event, flags);
}

std::int64_t MacEvent::sourceProcessId() const {
    return CGEventGetIntegerValueField(_event, kCGEventSourceUnixProcessID);
}

int MacEvent::gestureKind() const {
    return static_cast<int>([wrapper() type]);
}

int MacEvent::touchCount(TouchPhases phases) const {
    return static_cast<int>([[wrapper() touchesMatchingPhase:phases inView:nil] count]);
}

NSEvent *MacEvent::wrapper() const {
    if (!_wrapper) {
        _wrapper = [NSEvent eventWithCGEvent:_event];
    }
    return _wrapper;
}

} // namespace barquell
