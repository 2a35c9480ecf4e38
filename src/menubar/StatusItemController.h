#pragma once

#include "blocking/TrustedProcessChecker.h"
#include "foundation/NotificationCenter.h"
#include "foundation/interface/InterfaceFile.h"
#include "menubar/MenuKeys.h"
#include "menubar/StatusItemView.h"
#include "observing/KeyValueObserver.h"
#include "platform/Workspace.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

namespace barquell {

/// The program's item in the status bar: its icon shows whether blocking is in force and whether the process
/// is trusted, a click opens the menu. It lives as long as the item is to be shown. Main thread only.
class StatusItemController final : public KeyValueObserver,
                                   public TrustedProcessObserver,
                                   public StatusItemViewDelegate {
    Q_OBJECT
    Q_PROPERTY(QObject *nextObject READ nextObject WRITE setNextObject)
    Q_PROPERTY(QMenu *statusItemMenu READ statusItemMenu WRITE setStatusItemMenu)
    Q_PROPERTY(QAction *toggleAppMenuItem READ toggleAppMenuItem WRITE setToggleAppMenuItem)
    Q_PROPERTY(QAction *bypassAppMenuItem READ bypassAppMenuItem WRITE setBypassAppMenuItem)

public:
    /// Loads the interface file "StatusItem", which sets the owner's outlet `statusItemController`. What it
    /// made goes with what is given back; nothing where the file cannot be loaded.
    static TopLevelObjects loadFromNib(QObject *owner);

    explicit StatusItemController(QObject *parent = nullptr);
    ~StatusItemController() override;
    Q_DISABLE_COPY_MOVE(StatusItemController)

    Q_INVOKABLE void awakeFromNib();

    /// Names the application in the menu item that bypasses it; none hides the item.
    void setFrontmostApp(const std::optional<RunningApplication> &application);
    void setFrontmostAppBypassed(bool bypassed);

    /// Opens the menu as a click does.
    void popupMenu();

    void processTrustedStateDidChange(bool trusted) override;
    void touchBatStateDidChange(const Notification &notification);

    /// The item left the bar, by the user's hand, or came back.
    void statusItemVisibilityDidChange(bool visible);

    bool statusItemViewMouseDown(StatusItemView &view, const StatusItemClick &click) override;
    bool statusItemViewRightMouseDown(StatusItemView &view, const StatusItemClick &click) override;

    /// What the quit item sends: interface files know the application's delegate, but not the application.
    Q_INVOKABLE void terminate(const QVariant &sender);

    /// Shortcuts rest while the menu is open.
    void menuWillOpen(QMenu *menu);
    void menuDidClose(QMenu *menu);

    QObject *nextObject() const { return _nextObject; }
    void setNextObject(QObject *object) { _nextObject = object; }
    QMenu *statusItemMenu() const { return _statusItemMenu; }
    void setStatusItemMenu(QMenu *menu);
    QAction *toggleAppMenuItem() const { return _toggleAppMenuItem; }
    void setToggleAppMenuItem(QAction *item) { _toggleAppMenuItem = item; }
    QAction *bypassAppMenuItem() const { return _bypassAppMenuItem; }
    void setBypassAppMenuItem(QAction *item) { _bypassAppMenuItem = item; }

    /// nullptr where the place has no status bar.
    StatusBarItem *statusItem() const { return _statusItem.get(); }
    StatusItemView &statusItemView() { return _statusItemView; }

private:
    void createStatusItem();
    void endMenu();

    bool _interceptorEnabled = false;
    QString _bypassAppMenuItemTemplate; ///< the item's title as the file has it, with one "%@"
    QPointer<QObject> _nextObject;
    QPointer<QMenu> _statusItemMenu;
    std::unique_ptr<MenuKeys> _menuKeys;
    QPointer<QAction> _toggleAppMenuItem;
    QPointer<QAction> _bypassAppMenuItem;
    StatusItemView _statusItemView;
    bool _frontmostAppBypassed = false;
    bool _menuIsOpen = false;
    std::unique_ptr<StatusBarItem> _statusItem; // last, so that no click arrives at what has gone
};

} // namespace barquell
