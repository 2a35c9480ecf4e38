#pragma once

#include <QVariantMap>

#include <functional>

namespace barquell {

/// How the application takes part in the desktop. The numbers are NSApplicationActivationPolicy's.
enum class ActivationPolicy {
    Regular = 0,   ///< with a Dock icon, or an entry in the task list
    Accessory = 1, ///< with its status item alone
};

/// Hears of the application's life.
class AppLifecycleDelegate {
public:
    virtual ~AppLifecycleDelegate() = default;

    /// Once, from the run loop, when it has begun. macOS: applicationDidFinishLaunching:.
    virtual void applicationDidFinishLaunching() = 0;

    /// The user started the running application again. macOS:
    /// applicationShouldHandleReopen:hasVisibleWindows:.
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows) = 0;

    /// macOS: applicationWillTerminate:.
    virtual void applicationWillTerminate() = 0;

protected:
    AppLifecycleDelegate() = default;
    AppLifecycleDelegate(const AppLifecycleDelegate &) = default;
    AppLifecycleDelegate &operator=(const AppLifecycleDelegate &) = default;
};

/// What other programs may ask of this one. Each is called from the run loop of the main thread; one that is
/// missing does nothing.
struct ScriptCommands {
    std::function<void()> toggleTouchBar = {};
    std::function<void(bool)> setTouchBarActive = {};
    std::function<QVariantMap()> status =
        {}; ///< names to values that a bus can carry; asked where there is one
};

/// The application as the desktop sees it. Main thread only. macOS: NSApp.
class AppLifecycle {
public:
    virtual ~AppLifecycle() = default;

    /// Held weakly by convention: the delegate takes itself out (nullptr) before it goes.
    virtual void setDelegate(AppLifecycleDelegate *delegate) = 0;
    virtual AppLifecycleDelegate *delegate() const = 0;

    /// To be set before run(); a place that no script reaches forgets them. macOS: NSScriptCommand.
    virtual void setScriptCommands(const ScriptCommands & /*commands*/) {}

    /// Runs the application until it terminates, and gives its exit status. macOS: NSApplicationMain.
    virtual int run() = 0;

    /// Ends the run loop; the delegate hears of it first. What stands behind the call is still carried out,
    /// so callers return at once. macOS: terminate:.
    virtual void terminate() = 0;

    virtual ActivationPolicy activationPolicy() const = 0;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;

    /// macOS: activateIgnoringOtherApps:YES.
    virtual void activate() = 0;

    /// Brings the first process of the system's list to the front, so that our own menu bar appears when we
    /// activate ourselves next; nothing where the place has no such list.
    /// macOS: GetNextProcess and SetFrontProcess, where both can be looked up.
    virtual void bringFirstProcessToFront() = 0;

protected:
    AppLifecycle() = default;
    AppLifecycle(const AppLifecycle &) = default;
    AppLifecycle &operator=(const AppLifecycle &) = default;
};

} // namespace barquell
