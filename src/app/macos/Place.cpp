#include "app/Place.h"

#include "app/macos/SettingsKeys.h"
#include "foundation/Bundle.h"
#include "platform/Platform.h"
#include "platform/macos/MacKeyboardModifiers.h"
#include "platform/macos/MacPlatform.h"
#include "platform/simulated/bar/SimulatedBar.h"

#include <QCoreApplication>

#include <memory>

namespace barquell {

namespace {

/// A Touch Bar in a window in place of the machine's own.
struct Simulation {
    MacKeyboardModifiers keyboard;
    SimulatedBar bar{[this] { return keyboard.currentFlags(); }};

    void takeThePlace() {
        Platform place = platform();
        place.eventTaps = &bar.eventTaps();
        place.modifierState = &bar.modifiers();
        place.accessibilityTrust = &bar.trust();
        installPlatform(place);
    }

    void begin() {
        keyboard.watch([this] { bar.modifiers().keyboardChanged(); });
        bar.show();
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [this] { bar.hide(); });
    }
};

} // namespace

void prepareProcess(bool starts) {
    if (starts) {
        installMac(Bundle::mainBundleIdentifier(), settingsKeys());
    }
}

bool hasDisplay() {
    return true;
}

void installThisMachine() {
    installMacWithoutApplication(Bundle::mainBundleIdentifier());
}

/// The Mac itself stands since before the application object.
void installThisSession(Bar bar) {
    if (bar == Bar::Simulated) {
        static Simulation &simulation =
            *std::make_unique<Simulation>().release(); // outlives all that uses it
        simulation.takeThePlace();
        simulation.begin();
    }
}

/// The system itself posts whether the screen is covered.
void afterLaunch() {}

} // namespace barquell
