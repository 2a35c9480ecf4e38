#pragma once

#include "platform/EventTap.h"
#include "platform/ModifierState.h"

namespace barquell {

/// Taps of the session's event stream, at its head. The system itself asks the user for access when an
/// untrusted process creates one. Main thread only.
class MacEventTaps final : public EventTaps {
public:
    std::unique_ptr<EventTap> create(EventMask mask, EventTapCallback callback) override;
    bool canChangeFlags() const override { return true; }
};

class MacModifierState final : public ModifierState {
public:
    ModifierFlags currentFlags() const override;
};

} // namespace barquell
