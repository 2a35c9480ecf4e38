#include "platform/macos/MacPlatform.h"

#include "platform/macos/MacAccessibilityTrust.h"
#include "platform/macos/MacAppLifecycle.h"
#include "platform/macos/MacApplications.h"
#include "platform/macos/MacDiagnostics.h"
#include "platform/macos/MacDistributedNotifications.h"
#include "platform/macos/MacEventTaps.h"
#include "platform/macos/MacHotKeys.h"
#include "platform/macos/MacKeyEvents.h"
#include "platform/macos/MacKeyboardLayout.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacOverlayPanels.h"
#include "platform/macos/MacSettingsStore.h"
#include "platform/macos/MacStatusBar.h"
#include "platform/macos/MacWorkspace.h"

namespace barquell {

namespace {

struct Mac {
    Mac(const QString &domain, const QStringList &keys) : settings(domain, keys), diagnostics(domain) {}

    MacEventTaps taps;
    MacModifierState modifiers;
    MacAccessibilityTrust trust;
    MacDistributedNotifications notifications;
    MacSettingsStore settings;
    MacHotKeys hotKeys;
    MacKeyboardLayout keyboardLayout;
    MacKeyEvents keyEvents;
    MacWorkspace workspace;
    MacApplications applications;
    MacLoginItem loginItem;
    MacAppLifecycle lifecycle;
    MacStatusBar statusBar;
    MacOverlayPanels overlayPanels;
    MacDiagnostics diagnostics;
};

} // namespace

void installMac(const QString &domain, const QStringList &settingsKeys) {
    static Mac mac(domain, settingsKeys);
    installPlatform({.eventTaps = &mac.taps,
                     .modifierState = &mac.modifiers,
                     .accessibilityTrust = &mac.trust,
                     .distributedNotifications = &mac.notifications,
                     .settingsStore = &mac.settings,
                     .hotKeys = &mac.hotKeys,
                     .keyboardLayout = &mac.keyboardLayout,
                     .keyEvents = &mac.keyEvents,
                     .workspace = &mac.workspace,
                     .applications = &mac.applications,
                     .loginItem = &mac.loginItem,
                     .appLifecycle = &mac.lifecycle,
                     .statusBar = &mac.statusBar,
                     .overlayPanels = &mac.overlayPanels,
                     .diagnostics = &mac.diagnostics});
}

} // namespace barquell
