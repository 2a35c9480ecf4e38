#include "platform/linux/session/LinuxAppLifecycle.h"

#include "foundation/Bundle.h"
#include "foundation/RunLoop.h"
#include "platform/linux/session/TerminationSignals.h"
#include "platform/linux/x11/OwnWindows.h"

#include <QGuiApplication>
#include <QWindow>

#include <utility>

namespace barquell {

using namespace std::chrono_literals;

namespace {

// The bus sets it for what it starts; a program started from such a program's terminal inherits it.
constexpr const char *kStarterVariable = "DBUS_STARTER_BUS_TYPE";
constexpr auto kCallComesWithin = 3s;

} // namespace

LinuxAppLifecycle::LinuxAppLifecycle(MessageBus &bus, RunningCopies &copies, OwnWindows *windows)
    : _bus(bus), _copies(copies), _windows(windows) {}

int LinuxAppLifecycle::run() {
    if (_terminating) {
        return 0;
    }
    const TerminationSignals signalled([this] { terminate(); });
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication::setDesktopFileName(Bundle::mainBundleIdentifier());
    _startedByBus = qEnvironmentVariableIsSet(kStarterVariable);
    qunsetenv(kStarterVariable);
    connect(&_bus, &MessageBus::connected, this, &LinuxAppLifecycle::enterBus);
    enterBus();
    RunLoop::main().performAsync([guard = QPointer(this)] {
        if (guard) {
            guard->launch();
        }
    });
    const int status = QCoreApplication::exec();
    terminate(); // whatever else ended the run loop
    if (_bus.isConnected()) {
        // What was posted last is sent by another thread; once this is answered, it has left the process.
        _bus.call(MessageBus::question(QStringLiteral("GetId")));
    }
    return status;
}

void LinuxAppLifecycle::launch() {
    if (_terminating) {
        return;
    }
    if (_startedByBus) {
        RunLoop::main().performAfter(kCallComesWithin, [guard = QPointer(this)] {
            if (guard) {
                guard->_startedByBus = false;
            }
        });
    }
    if (_delegate) {
        _delegate->applicationDidFinishLaunching();
    }
    _launched = true;
}

void LinuxAppLifecycle::terminate() {
    if (std::exchange(_terminating, true)) {
        return;
    }
    if (_delegate) {
        _delegate->applicationWillTerminate();
    }
    QCoreApplication::exit(0); // quit() would ask the windows, and a sheet could refuse
}

void LinuxAppLifecycle::enterBus() {
    if (_bus.isConnected()) {
        _object.exportOn(_bus.connection());
    }
    // The name after the object, so that whoever finds the one finds the other.
    _copies.enter();
}

void LinuxAppLifecycle::reopen(const QVariantMap & /*platformData*/) {
    // The call that the bus started the program for is no reopen: it stands for the start itself.
    if (std::exchange(_startedByBus, false) || !_launched || _terminating || !_delegate) {
        return;
    }
    // Later, so that the caller has its answer before windows are made.
    RunLoop::main().performAsync([guard = QPointer(this)] {
        if (guard && guard->_delegate && !guard->_terminating) {
            guard->_delegate->applicationShouldHandleReopen(!OwnWindows::visible().isEmpty());
        }
    });
}

void LinuxAppLifecycle::setActivationPolicy(ActivationPolicy policy) {
    _policy = policy;
    if (_windows) {
        _windows->setHiddenFromTaskBar(policy == ActivationPolicy::Accessory);
    }
}

void LinuxAppLifecycle::activate() {
    if (_windows) {
        _windows->activate();
        return;
    }
    for (QWindow *window : OwnWindows::visible()) {
        window->raise();
        window->requestActivate();
    }
}

} // namespace barquell
