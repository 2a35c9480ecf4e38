#pragma once

#include "platform/linux/x11/XDesktop.h"

#include <QObject>

class QWindow;

namespace barquell {

/// How a desktop's task bar and window manager treat this program's windows: the ordinary ones, with frames.
/// Needs a QGuiApplication on the X server that it is connected to. Main thread only.
class OwnWindows final : public QObject {
    Q_OBJECT
public:
    /// From now on, for windows that show later too.
    explicit OwnWindows(std::unique_ptr<XDesktop> connection);

    /// Whether task bars and pagers leave the windows out. They do until told otherwise.
    void setHiddenFromTaskBar(bool hidden);

    /// Raises the windows that are visible and gives the last of them the focus, from whoever has it.
    void activate();

    /// Ordinary windows of this program that the user can see.
    static QList<QWindow *> visible();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void activateNow();
    void writeHints(QWindow &window) const;
    void askManager(QWindow &window) const;
    std::uint32_t serverTime() const;

    std::unique_ptr<XDesktop> _x;
    xcb_window_t _clock = XCB_NONE; // never shown
    bool _hidden = true;
};

} // namespace barquell
