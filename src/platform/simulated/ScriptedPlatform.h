#pragma once

#include "platform/ModifierState.h"
#include "platform/Platform.h"
#include "platform/simulated/FixedKeyboardLayout.h"
#include "platform/simulated/InProcessNotifications.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/RecordedOverlayPanels.h"
#include "platform/simulated/ScriptedAppLifecycle.h"
#include "platform/simulated/ScriptedApplications.h"
#include "platform/simulated/ScriptedDiagnostics.h"
#include "platform/simulated/ScriptedEventTaps.h"
#include "platform/simulated/ScriptedHotKeys.h"
#include "platform/simulated/ScriptedKeyEvents.h"
#include "platform/simulated/ScriptedLoginItem.h"
#include "platform/simulated/ScriptedStatusBar.h"
#include "platform/simulated/ScriptedWorkspace.h"

namespace barquell {

class ScriptedTrust final : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override { return trusted; }
    bool hasPrivacyPage() const override { return privacyPage; }

    bool trusted = true;
    bool privacyPage = true;
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
    ScriptedWorkspace workspace;
    ScriptedApplications applications;
    ScriptedLoginItem loginItem;
    ScriptedAppLifecycle lifecycle;
    ScriptedStatusBar statusBar;
    ScriptedHotKeys hotKeys;
    FixedKeyboardLayout keyboardLayout;
    ScriptedKeyEvents keyEvents;
    RecordedOverlayPanels overlayPanels;
    ScriptedDiagnostics diagnostics;

    /// Makes it the place of this process; it must then outlive all that runs.
    void install() {
        installPlatform({.eventTaps = &taps,
                         .modifierState = &modifiers,
                         .accessibilityTrust = &trust,
                         .distributedNotifications = &notifications,
                         .settingsStore = &settings,
                         .hotKeys = &hotKeys,
                         .keyboardLayout = &keyboardLayout,
                         .keyEvents = &keyEvents,
                         .workspace = &workspace,
                         .applications = &applications,
                         .loginItem = &loginItem,
                         .appLifecycle = &lifecycle,
                         .statusBar = &statusBar,
                         .overlayPanels = &overlayPanels,
                         .diagnostics = &diagnostics});
    }
};

} // namespace barquell
