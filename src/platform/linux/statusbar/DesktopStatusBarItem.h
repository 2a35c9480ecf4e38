#pragma once

#include "platform/StatusBar.h"
#include "platform/linux/statusbar/NotifierItem.h"
#include "platform/linux/statusbar/StatusItemLook.h"
#include "platform/linux/statusbar/TrayItem.h"

#include <QMenu>
#include <QObject>
#include <QPointer>

namespace barquell {

class NotifierWatcher;

/// An item for panels of the session bus, with one in the X11 tray in its place while there is no such panel.
/// Its menu is a menu of this program, opened where the click was. Main thread only.
class DesktopStatusBarItem final : public QObject, public StatusBarItem {
    Q_OBJECT

public:
    /// The watcher must outlive the item.
    explicit DesktopStatusBarItem(NotifierWatcher &watcher);
    ~DesktopStatusBarItem() override;
    Q_DISABLE_COPY_MOVE(DesktopStatusBarItem)

    void setAutosaveName(const QString &name) override;
    void setRemovalAllowed(bool allowed) override;
    bool isVisible() const override { return _look.visible; }
    void setVisible(bool visible) override;
    void watchVisibility(std::function<void(bool visible)> changed) override;
    void setImage(const QIcon &image) override;
    void setToolTip(const QString &text) override;
    void setOpacity(double opacity) override;
    void setMenu(QMenu *menu) override { _menu = menu; }
    void performClick() override;
    void setClickHandler(std::function<bool(const StatusItemClick &)> handler) override;

    /// Hears of a change between light and dark.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateLater();
    void update();
    void click(bool right, const QPoint &position);
    void openMenu(const QPoint &position);

    NotifierWatcher &_watcher;
    StatusItemLook _look;
    QPointer<QMenu> _menu;
    std::function<void(bool)> _visibilityChanged;
    std::function<bool(const StatusItemClick &)> _clickHandler;
    bool _updatePending = false;
    NotifierItem _notifierItem;
    std::unique_ptr<TrayItem> _trayItem; // while no panel of the bus shows us
};

} // namespace barquell
