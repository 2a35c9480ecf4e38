#pragma once

#include <QString>

class QWidget;

namespace barquell {

/// Announced locally whenever the like-the-app entry may have appeared or disappeared; no object, no
/// userInfo.
QString likeTheAppButtonNotification();

/// Offers the user to rate the program some days after the first start, and again some time after each
/// answer. A service of the process: class methods over one state. Main thread only.
class LikeTheAppTracker {
public:
    LikeTheAppTracker() = delete;

    /// Begins the schedule; to be called once, at launch. The date of the next offer is a setting and so
    /// survives restarts.
    static void start();

    /// The entry may be shown.
    static bool canDisplayButton();

    /// Asks: as a sheet where a window is given, else modal for the application. Returns at once; the answer
    /// comes later. A question that already stands comes to the front instead of a second one.
    static void showDialogModalForWindow(QWidget *window);

    /// The date of the offer has come.
    static void displayTimerDidFire();
};

} // namespace barquell
