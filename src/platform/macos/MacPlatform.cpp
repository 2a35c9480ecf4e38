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

#include <memory>

namespace barquell {

namespace {

/// What every process can have.
struct Services {
    Services(const QString &domain, const QStringList &keys) : settings(domain, keys), diagnostics(domain) {}

    MacModifierState modifiers;
    MacAccessibilityTrust trust;
    MacDistributedNotifications notifications;
    MacSettingsStore settings;
    MacWorkspace workspace;
    MacApplications applications;
    MacLoginItem loginItem;
    MacDiagnostics diagnostics;
};

/// What an application has.
struct Application {
    MacEventTaps taps;
    MacHotKeys hotKeys;
    MacKeyboardLayout keyboardLayout;
    MacKeyEvents keyEvents;
    MacAppLifecycle lifecycle;
    MacStatusBar statusBar;
    MacOverlayPanels overlayPanels;
};

/// Never taken down: statics that use it go in an order of their own.
template <typename Part, typename... Arguments>
Part &immortal(const Arguments &...arguments) {
    return *std::make_unique<Part>(arguments...).release();
}

Platform servicesOnly(const QString &domain, const QStringList &keys) {
    static auto &services = immortal<Services>(domain, keys);
    return {.modifierState = &services.modifiers,
            .accessibilityTrust = &services.trust,
            .distributedNotifications = &services.notifications,
            .settingsStore = &services.settings,
            .workspace = &services.workspace,
            .applications = &services.applications,
            .loginItem = &services.loginItem,
            .diagnostics = &services.diagnostics};
}

} // namespace

void installMac(const QString &domain, const QStringList &settingsKeys) {
    static auto &application = immortal<Application>();
    Platform place = servicesOnly(domain, settingsKeys);
    place.eventTaps = &application.taps;
    place.hotKeys = &application.hotKeys;
    place.keyboardLayout = &application.keyboardLayout;
    place.keyEvents = &application.keyEvents;
    place.appLifecycle = &application.lifecycle;
    place.statusBar = &application.statusBar;
    place.overlayPanels = &application.overlayPanels;
    installPlatform(place);
}

void installMacWithoutApplication(const QString &domain) {
    installPlatform(servicesOnly(domain, {}));
}

} // namespace barquell
