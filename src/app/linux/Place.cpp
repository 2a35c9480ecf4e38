#include "app/Place.h"

#include "app/linux/GrantPermission.h"
#include "app/linux/TapServerSocket.h"
#include "foundation/RunLoop.h"
#include "menubar/PermissionPage.h"
#include "platform/Platform.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/LinuxDiagnostics.h"
#include "platform/linux/Memory.h"
#include "platform/linux/client/GrantTrust.h"
#include "platform/linux/client/TapServerClient.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/LinuxApplications.h"
#include "platform/linux/desktop/LinuxUrlOpener.h"
#include "platform/linux/keys/LinuxKeys.h"
#include "platform/linux/keys/XKeyboardModifiers.h"
#include "platform/linux/overlay/LinuxOverlayPanels.h"
#include "platform/linux/session/BusNotifications.h"
#include "platform/linux/session/LinuxAppLifecycle.h"
#include "platform/linux/session/LinuxWorkspace.h"
#include "platform/linux/session/ScreenShield.h"
#include "platform/linux/statusbar/DesktopStatusBar.h"
#include "platform/linux/x11/OwnWindows.h"
#include "platform/simulated/bar/SimulatedBar.h"
#include "process/Windows.h"

#include <QCoreApplication>

#include <optional>

namespace barquell {

namespace {

constexpr std::chrono::seconds kStartIsOver{1}; // with what other programs ask of a new status item

FileSettingsStore &settings() {
    static FileSettingsStore store(FileSettingsStore::defaultPath());
    return store;
}

/// Stands in for the privacy settings, which no desktop here has.
void showPrivacyPage(const GrantTrust &trust, GrantClient &grant) {
    if (hasWindows()) {
        PermissionPage::show(permissionOf(trust, grant));
    }
}

/// Never taken down: what the process holds of it goes with the process, while the statics that use it are
/// destroyed in an order of their own, after the application object.
template <typename Part>
Part &immortal() {
    static Part &part = *std::make_unique<Part>().release();
    return part;
}

/// What the user's session is for the program, with windows or without.
struct Session {
    SessionBus bus;
    BusNotifications notifications{bus};
    GrantTrust trust{thisMachinesGrants(), notifications};
    GrantClient grant{tapServerSocket()};
    TapServerClient tapServer{tapServerSocket(), trust, grant};
    RunningCopies copies{bus};
    LinuxDiagnostics diagnostics;
    DesktopEntries entries;
    LinuxWorkspace workspace{XDesktop::open(), entries, copies,
                             LinuxUrlOpener([this] { showPrivacyPage(trust, grant); })};
    LinuxApplications applications{entries};
    AutostartLoginItem loginItem{QCoreApplication::applicationFilePath()};
};

struct ShieldWatch {
    MessageBus systemBus{QStringLiteral("system bus"), MessageBus::systemAddress()};
    ScreenShield shield;

    explicit ShieldWatch(Session &session) : shield(session.bus, systemBus, session.notifications) {}
};

/// What is there for programs with windows.
struct Desktop {
    std::optional<OwnWindows> ownWindows; ///< on an X server
    LinuxKeys keys;
    LinuxOverlayPanels overlayPanels;
    DesktopStatusBar statusBar{immortal<Session>().bus};

    Desktop() {
        if (auto connection = XDesktop::open()) {
            ownWindows.emplace(std::move(connection));
        }
    }
};

/// A Touch Bar in a window in place of the machine's own.
struct Simulation {
    XKeyboardModifiers keyboard;
    SimulatedBar bar{[this] { return keyboard.currentFlags(); }};

    void takeThePlace(Platform &place) {
        place.eventTaps = &bar.eventTaps();
        place.modifierState = &bar.modifiers();
        place.accessibilityTrust = &bar.trust();
    }

    void begin() {
        keyboard.watch([this] { bar.modifiers().keyboardChanged(); });
        bar.show();
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [this] { bar.hide(); });
    }
};

} // namespace

void prepareProcess(bool /*starts*/) {
    shareMemoryAmongThreads();
}

void installThisMachine() {
    installPlatform({.settingsStore = &settings()});
}

void installThisSession(Bar bar) {
    auto &session = immortal<Session>();
    Platform place{.eventTaps = &session.tapServer,
                   .modifierState = &session.tapServer,
                   .accessibilityTrust = &session.trust,
                   .distributedNotifications = &session.notifications,
                   .settingsStore = &settings(),
                   .workspace = &session.workspace,
                   .applications = &session.applications,
                   .loginItem = &session.loginItem,
                   .diagnostics = &session.diagnostics};
    OwnWindows *ownWindows = nullptr;
    if (hasWindows()) {
        auto &desktop = immortal<Desktop>();
        ownWindows = desktop.ownWindows ? &*desktop.ownWindows : nullptr;
        place.hotKeys = &desktop.keys.hotKeys();
        place.keyboardLayout = &desktop.keys.keyboardLayout();
        place.keyEvents = &desktop.keys.keyEvents();
        place.statusBar = &desktop.statusBar;
        place.overlayPanels = &desktop.overlayPanels;
    }
    static auto &lifecycle =
        *std::make_unique<LinuxAppLifecycle>(session.bus, session.copies, ownWindows).release();
    place.appLifecycle = &lifecycle;
    if (bar == Bar::Simulated) {
        immortal<Simulation>().takeThePlace(place);
    }
    installPlatform(place);
    if (bar == Bar::Simulated) {
        immortal<Simulation>().begin();
    }
}

void afterLaunch() {
    static const ShieldWatch &watch = *std::make_unique<ShieldWatch>(immortal<Session>()).release();
    Q_UNUSED(watch);
    RunLoop::main().performAfter(kStartIsOver, giveBackFreeMemory);
}

QString tapServerSocket() {
    return qEnvironmentVariable("BARQUELL_TAP_SOCKET", QString::fromLatin1(protocol::kDefaultSocket));
}

} // namespace barquell
