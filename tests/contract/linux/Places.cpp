#include "client/FakeServer.h"
#include "contract/ContractPlace.h"
#include "desktop/DesktopFolder.h"
#include "platform/SettingsFolder.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/LinuxDiagnostics.h"
#include "platform/linux/client/GrantTrust.h"
#include "platform/linux/client/TapServerClient.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/LinuxApplications.h"
#include "platform/linux/keys/XHotKeys.h"
#include "platform/linux/keys/XkbKeyboardLayout.h"
#include "platform/linux/overlay/LinuxOverlayPanels.h"
#include "platform/linux/session/BusNotifications.h"
#include "platform/linux/session/LinuxAppLifecycle.h"
#include "platform/linux/session/LinuxWorkspace.h"
#include "platform/linux/statusbar/DesktopStatusBar.h"
#include "session/PrivateBus.h"

#include <unistd.h>

namespace barquell::test {

namespace {

/// Linux, with hot keys where there is an X server; the bus, the tap server's end of the socket and all files
/// are the test's own.
class LinuxPlace final : public ContractPlace {
public:
    LinuxPlace() { EXPECT_TRUE(setTrusted(true)); }

    Platform pieces() override {
        return {.eventTaps = &_tapServer,
                .modifierState = &_tapServer,
                .accessibilityTrust = &_trust,
                .distributedNotifications = &_notifications,
                .settingsStore = &_settings,
                .hotKeys = _hotKeys.get(),
                .keyboardLayout = &_keyboardLayout,
                .workspace = &_workspace,
                .applications = &_applications,
                .loginItem = &_loginItem,
                .appLifecycle = &_lifecycle,
                .statusBar = &_statusBar,
                .overlayPanels = &_overlayPanels,
                .diagnostics = &_diagnostics};
    }

    void editFromOutside(const QString &key, const QVariant &value) override {
        FileSettingsStore other(_settingsFolder.path());
        value.isValid() ? other.write(key, value) : other.remove(key);
    }

    bool setTrusted(bool trusted) override {
        const std::string problem = trusted ? _grants.give(::getuid()) : _grants.withdraw(::getuid());
        return problem.empty();
    }

    bool holdModifiers(ModifierFlags flags) override {
        _flags = flags;
        beThere();
        _server.send({.type = protocol::ServerMessageType::FlagsChanged, .flags = flags});
        return true;
    }

    bool touch() override {
        beThere();
        protocol::ServerMessage frame{
            .type = protocol::ServerMessageType::Frame, .flags = _flags, .frame = ++_frames};
        frame.touchCounts[0] = 1;
        _server.send(frame);
        return true;
    }

private:
    /// The server lets the client in that knocks.
    void beThere() {
        if (!_connected) {
            _connected = true;
            ASSERT_TRUE(_server.accept());
            _server.welcome();
        }
    }

    PrivateBus _bus;
    SettingsFolder _settingsFolder;
    DesktopFolder _autostart;
    QTemporaryDir _grantsFolder;
    FakeServer _server;
    bool _connected = false;
    ModifierFlags _flags = 0;
    std::uint64_t _frames = 0;

    grant::GrantFolder _grants{_grantsFolder.path().toStdString(), ::getuid()};
    SessionBus _session;
    BusNotifications _notifications{_session};
    GrantTrust _trust{_grants, _notifications};
    GrantClient _asking{_server.path()};
    TapServerClient _tapServer{_server.path(), _trust, _asking};
    FileSettingsStore _settings{_settingsFolder.path()};
    std::unique_ptr<XHotKeys> _hotKeys = XHotKeys::open();
    XkbKeyboardLayout _keyboardLayout{[] { return std::optional<Keymap>(); }};
    DesktopEntries _entries;
    RunningCopies _copies{_session};
    LinuxWorkspace _workspace{nullptr, _entries, _copies, [](const QUrl &) { return false; }};
    LinuxApplications _applications{_entries};
    AutostartLoginItem _loginItem{QStringLiteral("/opt/barquell"), {_autostart.path()}};
    LinuxAppLifecycle _lifecycle{_session, _copies};
    DesktopStatusBar _statusBar{_session};
    LinuxOverlayPanels _overlayPanels;
    LinuxDiagnostics _diagnostics;
};

} // namespace

std::vector<PlaceKind> places() {
    return {simulatedPlace(),
            {"Linux", []() -> std::unique_ptr<ContractPlace> { return std::make_unique<LinuxPlace>(); }}};
}

} // namespace barquell::test
