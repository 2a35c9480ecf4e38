#pragma once

#include "platform/Event.h"

#include <array>

namespace barquell {

/// An event whose answers are values: for tests and for the replay of recordings.
struct ScriptedEvent final : Event {
    explicit ScriptedEvent(EventType eventType, ModifierFlags eventFlags = 0)
        : type(eventType), modifierFlags(eventFlags) {}

    ModifierFlags flags() const override { return modifierFlags; }
    void setFlags(ModifierFlags flags) override { modifierFlags = flags; }
    std::int64_t sourceProcessId() const override { return processId; }
    int gestureKind() const override { return kind; }
    int touchCount(TouchPhases phases) const override;

    /// Adds a touch in the one phase.
    ScriptedEvent &touch(TouchPhases phase);

    EventType type;
    ModifierFlags modifierFlags;
    std::int64_t processId = 0;
    int kind = kGestureKindDirectTouch;
    std::array<int, 5> touchesByPhase{}; ///< by the number of the phase's bit
};

} // namespace barquell
