/// sessionprobe: a program of the session that says what is in front ("front ID", "front none" for a window
/// without an entry, "front nothing", "front unknown") and what its life tells it. Its bus object steers it:
/// a reopen shows its window, SetTouchBarActive switches between regular (true) and accessory.

#include "say.h"

#include "platform/linux/session/LinuxAppLifecycle.h"
#include "platform/linux/session/LinuxWorkspace.h"
#include "platform/linux/x11/OwnWindows.h"

#include <QApplication>
#include <QLabel>

using namespace barquell;

namespace {

class Probe final : public AppLifecycleDelegate {
public:
    Probe() {
        lifecycle.setDelegate(this);
        lifecycle.setScriptCommands({.setTouchBarActive = [this](bool regular) {
            lifecycle.setActivationPolicy(regular ? ActivationPolicy::Regular : ActivationPolicy::Accessory);
        }});
        _window.setWindowTitle(QStringLiteral("probe"));
        _window.resize(200, 100);
    }

    void applicationDidFinishLaunching() override {
        say(QStringLiteral("launched"));
        _observation = _workspace.observeActivation([this] { sayFront(); });
        sayFront();
    }
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override {
        say(QStringLiteral("reopen %1").arg(hasVisibleWindows ? 1 : 0));
        lifecycle.activate();
        _window.show();
        return true;
    }
    void applicationWillTerminate() override { say(QStringLiteral("terminate")); }

private:
    void sayFront() {
        const auto front = _workspace.frontmostApplication();
        if (!_workspace.canKnowFrontmostApplication()) {
            say(QStringLiteral("front unknown"));
        } else if (!front) {
            say(QStringLiteral("front nothing"));
        } else {
            say(QStringLiteral("front ") +
                (front->bundleIdentifier.isEmpty() ? QStringLiteral("none") : front->bundleIdentifier));
        }
    }

    SessionBus _bus;
    RunningCopies _copies{_bus};
    DesktopEntries _entries;
    OwnWindows _windows{XDesktop::open()};
    LinuxWorkspace _workspace{XDesktop::open(), _entries, _copies, {}};
    QLabel _window;
    std::unique_ptr<Observation> _observation;

public:
    LinuxAppLifecycle lifecycle{_bus, _copies, &_windows};
};

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    Probe probe;
    return probe.lifecycle.run();
}
