#pragma once

namespace barquell {

/// What the system wants done before the application object is made; `starts` where this process is to be the
/// program itself.
void prepareProcess(bool starts);

/// Whether there is a display that a QApplication could use. Where that is a question it may take a moment.
bool hasDisplay();

/// Makes the machine that the program runs on the place where it lives, see Platform: what can be had without
/// a session. To be called once, before anything reads a setting.
void installThisMachine();

/// Whose touches are filtered.
enum class Bar {
    Real,
    Simulated, ///< one in a window, with a switch in place of the permission; needs a QApplication
};

/// The same with all of the user's session, for the program itself; needs the application object, with
/// windows where it is a QApplication.
void installThisSession(Bar bar);

/// What the place has to do once everybody listens, after installThisSession().
void afterLaunch();

} // namespace barquell
