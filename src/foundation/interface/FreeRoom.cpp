#include "foundation/interface/FreeRoom.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <QWindow>

namespace barquell {

namespace {

constexpr auto kKeptClear = "barquell_keptClear";
constexpr int kGap = 8;

} // namespace

void keepClear(QWidget &window) {
    window.setProperty(kKeptClear, true);
}

QRect freeRoom(const QScreen &screen) {
    QRect room = screen.availableGeometry();
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const int top = window->geometry().top() - titleHeight(*window);
        const bool isInTheWay = window->property(kKeptClear).toBool() && window->isVisible() &&
                                !window->isMinimized() && room.intersects(window->geometry()) &&
                                top > room.center().y();
        if (isInTheWay) {
            room.setBottom(top - kGap);
        }
    }
    return room;
}

int titleHeight(const QWidget &window) {
    const int known = window.windowHandle() ? window.windowHandle()->frameMargins().top() : 0;
    return known > 0 ? known : window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

} // namespace barquell
