#pragma once

namespace barquell {

/// Hears of what happens to a window. The delegate of a ContentWindow is a QObject that is one of these.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;

    /// The user, or the program, wants to close it.
    virtual bool windowShouldClose() { return true; }

    /// The window may be deleted later, not now.
    virtual void windowWillClose() {}

    virtual void windowDidResize() {}

protected:
    WindowDelegate() = default;
    WindowDelegate(const WindowDelegate &) = default;
    WindowDelegate &operator=(const WindowDelegate &) = default;
};

} // namespace barquell
