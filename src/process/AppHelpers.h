#pragma once

#include "foundation/Observable.h"

#include <QString>

#include <functional>

class QWidget;

namespace barquell {

/// Posted locally before a window is shown in the foreground, each time, with the window as its object.
QString foregroundWindowNotification();

/// How this copy of the program began.
enum class Startup {
    ByUser,
    ByLoginItem,
    Ending, ///< it has been told to terminate; nothing more is to be started
};

/// The process as a whole: one running copy, in the foreground (a Dock icon or a place in the task list)
/// while one of its windows needs that, and started at login if the user wants it. Class methods over one
/// state; the first call of any of them registers "OptionalDockIcon" and begins to follow it and
/// "LaunchAtStart". Needs Workspace, AppLifecycle and DistributedNotifications of the platform. Main thread
/// only.
class AppHelpers final : public ChangeObserver {
public:
    static AppHelpers &cls();

    /// Shows the window in front of everything, and keeps the process in the foreground until it closes.
    static void showForegroundWindow(QWidget *window);

    /// The completion (none: empty) runs when the process is in the foreground: at once where it is already,
    /// else from the run loop; not at all where it was sent to the background in between.
    static void becomeForegroundProcessCompletionHandler(std::function<void()> completion);

    /// Whether every foreground window can be closed by its button.
    static bool canBecomeBackgroundProcess();

    /// Closes the foreground windows and leaves the foreground, where canBecomeBackgroundProcess().
    static void becomeBackgroundProcess();

    /// To be called once, at launch: settles with other running copies, which may take the user's answer, and
    /// listens for the requests of later ones.
    static Startup startupCheck();

    static bool isLaunchedFromLoginItem();

    /// The process is in the background, or on its way there.
    static bool isBackground();

    void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override;

private:
    AppHelpers() = default;

    static void initialize();
};

} // namespace barquell
