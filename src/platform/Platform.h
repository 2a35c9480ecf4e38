#pragma once

namespace barquell {

class AccessibilityTrust;
class AppLifecycle;
class Applications;
class Diagnostics;
class DistributedNotifications;
class EventTaps;
class HotKeys;
class KeyEvents;
class KeyboardLayout;
class LoginItem;
class ModifierState;
class OverlayPanels;
class SettingsStore;
class StatusBar;
class Workspace;

/// The back end that this process lives on. The program entry installs one before anything else runs; it must
/// outlive every use. A place that lacks a piece leaves it null, and whoever needs that piece is not started
/// there.
struct Platform {
    EventTaps *eventTaps = nullptr;
    ModifierState *modifierState = nullptr;
    AccessibilityTrust *accessibilityTrust = nullptr;
    DistributedNotifications *distributedNotifications = nullptr;
    SettingsStore *settingsStore = nullptr;
    HotKeys *hotKeys = nullptr;
    KeyboardLayout *keyboardLayout = nullptr;
    KeyEvents *keyEvents = nullptr;
    Workspace *workspace = nullptr;
    Applications *applications = nullptr;
    LoginItem *loginItem = nullptr;
    AppLifecycle *appLifecycle = nullptr;
    StatusBar *statusBar = nullptr;
    OverlayPanels *overlayPanels = nullptr;
    Diagnostics *diagnostics = nullptr;
};

void installPlatform(const Platform &platform);

/// The installed back end. Main thread only.
const Platform &platform();

} // namespace barquell
