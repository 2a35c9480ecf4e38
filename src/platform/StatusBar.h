#pragma once

#include "platform/ModifierFlags.h"

#include <functional>
#include <memory>

class QIcon;
class QMenu;
class QString;

namespace barquell {

/// A click on a status item.
struct StatusItemClick {
    ModifierFlags modifierFlags = 0;
    bool right = false; ///< with the secondary button
};

/// One item in the desktop's status bar; its destruction takes it away. macOS: NSStatusItem and its button.
class StatusBarItem {
public:
    virtual ~StatusBarItem() = default;

    /// The name under which the system remembers the item's place. macOS: setAutosaveName:.
    virtual void setAutosaveName(const QString &name) = 0;

    /// The user may take the item away by the desktop's own gesture, where it has one.
    /// macOS: NSStatusItemBehaviorRemovalAllowed.
    virtual void setRemovalAllowed(bool allowed) = 0;

    virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;

    /// Calls whenever the visibility was set, by us or by the user's removal; a host that vanishes is not a
    /// removal. There is one listener, and it may destroy the item. macOS: key-value observation of
    /// "visible".
    virtual void watchVisibility(std::function<void(bool visible)> changed) = 0;

    /// A template image: its shape counts, its colour follows the bar. A null icon shows none.
    /// macOS: button.image.
    virtual void setImage(const QIcon &image) = 0;

    /// Empty for none. macOS: button.toolTip.
    virtual void setToolTip(const QString &text) = 0;

    /// 0 to 1; animated where the place can. macOS: [[button animator] setAlphaValue:].
    virtual void setOpacity(double opacity) = 0;

    /// What a click opens; not owned. macOS: setMenu:.
    virtual void setMenu(QMenu *menu) = 0;

    /// Opens the menu as a click does. macOS: [button performClick:].
    virtual void performClick() = 0;

    /// Asked about each click before the item acts on it; a click that it answers with true ends there. Not
    /// asked for performClick(). macOS: the mouseDown: and rightMouseDown: of a transparent view over the
    /// button.
    virtual void setClickHandler(std::function<bool(const StatusItemClick &)> handler) = 0;

protected:
    StatusBarItem() = default;
    StatusBarItem(const StatusBarItem &) = default;
    StatusBarItem &operator=(const StatusBarItem &) = default;
};

/// The desktop's status bar. Main thread only. macOS: [NSStatusBar systemStatusBar].
class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// macOS: [bar statusItemWithLength:NSVariableStatusItemLength].
    virtual std::unique_ptr<StatusBarItem> createItem() = 0;

    /// Somebody shows status items here.
    virtual bool hasHost() const = 0;

protected:
    StatusBar() = default;
    StatusBar(const StatusBar &) = default;
    StatusBar &operator=(const StatusBar &) = default;
};

} // namespace barquell
