#pragma once

class QScreen;

namespace barquell {

/// What an overlay must know of an X11 desktop; without one no window is active and nothing composes. Main
/// thread only, each question a round trip to the server.
class X11Desktop {
public:
    X11Desktop() = delete;

    /// A compositing manager runs, so windows may be translucent.
    static bool isComposited();

    /// The screen with the middle of the window that has the focus; nullptr where no window has it.
    static QScreen *screenOfActiveWindow();

    /// Sends what was asked for so far. Qt does not until something else happens, which would swallow a fade.
    static void flush();
};

} // namespace barquell
