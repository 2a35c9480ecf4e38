#include "platform/simulated/ScriptedStatusBar.h"

#include <algorithm>

namespace barquell {

namespace {

std::string call(const char *name, const QString &argument) {
    return QStringLiteral("%1 %2").arg(QLatin1String(name), argument).trimmed().toStdString();
}

QString truth(bool value) {
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace

ScriptedStatusBarItem::ScriptedStatusBarItem(ScriptedStatusBar &bar) : _bar(bar) {
    _bar._items.push_back(this);
}

ScriptedStatusBarItem::~ScriptedStatusBarItem() {
    note("remove item");
    std::erase(_bar._items, this);
}

void ScriptedStatusBarItem::setAutosaveName(const QString &name) {
    note(call("autosave name", name));
}

void ScriptedStatusBarItem::setRemovalAllowed(bool allowed) {
    note(call("removal allowed", truth(allowed)));
}

void ScriptedStatusBarItem::setVisible(bool visible) {
    note(call("visible", truth(visible)));
    _visible = visible;
    if (const auto changed = _visibilityChanged) { // who hears it may drop the item
        changed(visible);
    }
}

void ScriptedStatusBarItem::watchVisibility(std::function<void(bool)> changed) {
    note("watch visibility");
    _visibilityChanged = std::move(changed);
}

void ScriptedStatusBarItem::setImage(const QIcon &image) {
    note(image.isNull() ? "no image" : "image");
    _image = image;
}

void ScriptedStatusBarItem::setToolTip(const QString &text) {
    note(call("tool tip", text));
    _toolTip = text;
}

void ScriptedStatusBarItem::setOpacity(double opacity) {
    note(call("opacity", QString::number(opacity)));
    _opacity = opacity;
}

void ScriptedStatusBarItem::setMenu(QMenu *menu) {
    note(menu ? "menu" : "no menu");
    _menu = menu;
}

void ScriptedStatusBarItem::performClick() {
    note("perform click");
    if (_menu) {
        _menu->popup(QPoint());
    }
}

void ScriptedStatusBarItem::setClickHandler(std::function<bool(const StatusItemClick &)> handler) {
    note("click handler");
    _clickHandler = std::move(handler);
}

void ScriptedStatusBarItem::click(const StatusItemClick &click) {
    if (!(_clickHandler && _clickHandler(click))) {
        performClick();
    }
}

void ScriptedStatusBarItem::removeByUser() {
    setVisible(false);
}

void ScriptedStatusBarItem::note(const std::string &call) {
    _bar.journal.push_back(call);
}

std::unique_ptr<StatusBarItem> ScriptedStatusBar::createItem() {
    journal.emplace_back("create item");
    return refuseItems ? nullptr : std::make_unique<ScriptedStatusBarItem>(*this);
}

} // namespace barquell
