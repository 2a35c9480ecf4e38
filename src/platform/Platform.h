#pragma once

namespace barquell {

class AccessibilityTrust;
class DistributedNotifications;
class EventTaps;
class ModifierState;
class SettingsStore;

/// The back end that this process lives on. The program entry installs one before anything else runs; it must
/// outlive every use. A place that lacks a piece leaves it null, and whoever needs that piece is not started
/// there.
struct Platform {
    EventTaps *eventTaps = nullptr;
    ModifierState *modifierState = nullptr;
    AccessibilityTrust *accessibilityTrust = nullptr;
    DistributedNotifications *distributedNotifications = nullptr;
    SettingsStore *settingsStore = nullptr;
};

void installPlatform(const Platform &platform);

/// The installed back end. Main thread only.
const Platform &platform();

} // namespace barquell
