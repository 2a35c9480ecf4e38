#pragma once

class QRect;
class QScreen;
class QWidget;

namespace barquell {

/// Whoever stays at the lower edge of the screen and wants to be seen there says so once. Main thread only.
void keepClear(QWidget &window);

/// Where windows may be put: what the desktop leaves free, above the windows of this program that are to be
/// kept clear and stand in its lower half.
QRect freeRoom(const QScreen &screen);

/// What a window manager draws, or will draw, above the window.
int titleHeight(const QWidget &window);

} // namespace barquell
