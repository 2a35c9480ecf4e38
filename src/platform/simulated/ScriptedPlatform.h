#pragma once

#include "platform/ModifierState.h"
#include "platform/Platform.h"
#include "platform/simulated/InProcessNotifications.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedEventTaps.h"

namespace barquell {

class ScriptedTrust final : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override { return trusted; }

    bool trusted = true;
};

class ScriptedModifierState final : public ModifierState {
public:
    ModifierFlags currentFlags() const override { return flags; }

    ModifierFlags flags = 0;
};

/// A whole place to live that does what a script says.
struct ScriptedPlatform {
    ScriptedTrust trust;
    ScriptedModifierState modifiers;
    ScriptedEventTaps taps{trust};
    InProcessNotifications notifications;
    MemorySettingsStore settings;

    /// Makes it the place of this process; it must then outlive all that runs.
    void install() { installPlatform({&taps, &modifiers, &trust, &notifications, &settings}); }
};

} // namespace barquell
