#pragma once

#include <QString>

namespace barquell {

class LinuxAppLifecycle;

/// Makes the machine that the program runs on the place where it lives, see Platform: what can be had without
/// a session. To be called once, before anything reads a setting.
void installThisMachine();

/// Whose touches are filtered.
enum class Bar {
    Real,
    Simulated, ///< one in a window, with a switch in place of the permission; needs a QApplication
};

/// The same with all of the user's session, for the program itself; needs the application object, with
/// windows where it is a QApplication. Gives the life that the program is to lead there.
LinuxAppLifecycle &installThisSession(Bar bar);

/// Begins to post whether a screen saver or a lock covers the screen; to be called once everybody listens,
/// after installThisSession().
void watchScreenShield();

/// Where the tap server listens; BARQUELL_TAP_SOCKET in the environment names another place.
QString tapServerSocket();

} // namespace barquell
