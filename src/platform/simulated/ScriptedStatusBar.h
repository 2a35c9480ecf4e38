#pragma once

#include "platform/StatusBar.h"

#include <QIcon>
#include <QMenu>
#include <QPointer>
#include <QString>

#include <string>
#include <vector>

namespace barquell {

class ScriptedStatusBar;

/// A status item as its bar sees it.
class ScriptedStatusBarItem final : public StatusBarItem {
public:
    /// Takes itself out of the bar, which must outlive it.
    explicit ScriptedStatusBarItem(ScriptedStatusBar &bar);
    ~ScriptedStatusBarItem() override;
    Q_DISABLE_COPY_MOVE(ScriptedStatusBarItem)

    void setAutosaveName(const QString &name) override;
    void setRemovalAllowed(bool allowed) override;
    bool isVisible() const override { return _visible; }
    void setVisible(bool visible) override;
    void watchVisibility(std::function<void(bool visible)> changed) override;
    void setImage(const QIcon &image) override;
    void setToolTip(const QString &text) override;
    void setOpacity(double opacity) override;
    void setMenu(QMenu *menu) override;
    void performClick() override;
    void setClickHandler(std::function<bool(const StatusItemClick &)> handler) override;

    const QIcon &image() const { return _image; }
    const QString &toolTip() const { return _toolTip; }
    double opacity() const { return _opacity; }
    QMenu *menu() const { return _menu; }

    /// The user clicks; the menu opens where nobody ends the click before.
    void click(const StatusItemClick &click);

    /// The user takes the item out of the bar.
    void removeByUser();

private:
    void note(const std::string &call);

    ScriptedStatusBar &_bar;
    QIcon _image;
    QString _toolTip;
    double _opacity = 1;
    QPointer<QMenu> _menu;
    bool _visible = true;
    std::function<void(bool)> _visibilityChanged;
    std::function<bool(const StatusItemClick &)> _clickHandler;
};

/// A status bar whose user follows a script.
class ScriptedStatusBar final : public StatusBar {
public:
    std::unique_ptr<StatusBarItem> createItem() override;
    bool hasHost() const override { return host; }

    /// The newest item that is still there; nullptr without one.
    ScriptedStatusBarItem *item() const { return _items.empty() ? nullptr : _items.back(); }

    bool host = true;
    bool refuseItems = false; ///< createItem() gives nothing

    /// The calls made on the bar and its items, in their order, with their arguments.
    std::vector<std::string> journal;

private:
    friend ScriptedStatusBarItem;

    std::vector<ScriptedStatusBarItem *> _items; // each takes itself out
};

} // namespace barquell
