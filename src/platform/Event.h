#pragma once

#include "platform/ModifierFlags.h"

#include <cstdint>

namespace barquell {

/// What an event is. The numbers are CGEventType's and NSEventType's.
enum class EventType : std::uint32_t {
    Null = 0,
    FlagsChanged = 12,                 ///< kCGEventFlagsChanged: a modifier key went down or up
    SystemDefined = 14,                ///< NSEventTypeSystemDefined: media keys and their like
    Gesture = 29,                      ///< NSEventTypeGesture: a frame of touches
    TapDisabledByTimeout = 0xFFFFFFFE, ///< kCGEventTapDisabledByTimeout: no event, but a word from the system
};

/// Which event types a tap is called for: bit n stands for type n.
using EventMask = std::uint64_t;

constexpr EventMask maskOf(EventType type) {
    return EventMask{1} << static_cast<std::uint32_t>(type);
}

/// NSEventTypeDirectTouch: the kind of a gesture made by a finger on the bar itself.
inline constexpr int kGestureKindDirectTouch = 37;

/// Phases of a touch, as bits (NSTouchPhase).
using TouchPhases = unsigned;
inline constexpr TouchPhases kTouchBegan = 1U << 0;
inline constexpr TouchPhases kTouchMoved = 1U << 1;
inline constexpr TouchPhases kTouchStationary = 1U << 2;
inline constexpr TouchPhases kTouchEnded = 1U << 3;
inline constexpr TouchPhases kTouchCancelled = 1U << 4;
inline constexpr TouchPhases kTouching = kTouchBegan | kTouchMoved | kTouchStationary; // NSTouchPhaseTouching

/// An event on its way through the tap. It belongs to the back end and lives for the length of the callback.
/// None of the questions fails; what a back end cannot know reads as 0. Main thread only.
class Event {
public:
    /// macOS: CGEventGetFlags.
    virtual ModifierFlags flags() const = 0;

    /// Changes the flags with which the event goes on. macOS: CGEventSetFlags.
    virtual void setFlags(ModifierFlags flags) = 0;

    /// The process that posted the event, 0 where the system itself did.
    /// macOS: CGEventGetIntegerValueField(event, kCGEventSourceUnixProcessID).
    virtual std::int64_t sourceProcessId() const = 0;

    /// What a gesture event really is, see kGestureKindDirectTouch. Asked of gesture events alone.
    /// macOS: [[NSEvent eventWithCGEvent:event] type]; the wrapper is made by the first question.
    virtual int gestureKind() const = 0;

    /// How many touches of a gesture event are in one of the phases. Asked of gesture events alone.
    /// macOS: [[nsEvent touchesMatchingPhase:phases inView:nil] count].
    virtual int touchCount(TouchPhases phases) const = 0;

protected:
    Event() = default;
    Event(const Event &) = default;
    Event &operator=(const Event &) = default;
    ~Event() = default;
};

} // namespace barquell
