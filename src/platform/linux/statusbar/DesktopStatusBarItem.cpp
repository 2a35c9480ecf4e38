#include "platform/linux/statusbar/DesktopStatusBarItem.h"

#include "platform/ModifierState.h"
#include "platform/Platform.h"
#include "platform/linux/statusbar/NotifierWatcher.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QPalette>
#include <QScreen>

namespace barquell {

namespace {

/// What is held at this moment. Who knows the keyboards need not know every one of them, so the window system
/// is asked as well.
ModifierFlags heldModifiers() {
    const ModifierFlags known = platform().modifierState ? platform().modifierState->currentFlags() : 0;
    const bool control = (QGuiApplication::queryKeyboardModifiers() & Qt::ControlModifier) != 0;
    return control ? known | kFlagControl : known;
}

/// A panel counts the screen's own pixels, Qt those of a screen whose pixels may be larger.
QPoint fromScreenPixels(const QPoint &position) {
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QPoint origin = screen->geometry().topLeft();
        const double scale = screen->devicePixelRatio();
        if (QRect(origin, screen->geometry().size() * scale).contains(position)) {
            return origin + (position - origin) / scale;
        }
    }
    return position;
}

} // namespace

DesktopStatusBarItem::DesktopStatusBarItem(NotifierWatcher &watcher)
    : _watcher(watcher), _notifierItem(watcher) {
    _look.name = QStringLiteral("barquell");
    // From the loop, since what a click leads to may destroy the item that the click is being told to.
    connect(
        &_notifierItem, &NotifierItem::clicked, this,
        [this](bool right, const QPoint &position) { click(right, fromScreenPixels(position)); },
        Qt::QueuedConnection);
    connect(&watcher, &NotifierWatcher::changed, this, &DesktopStatusBarItem::updateLater);
    qApp->installEventFilter(this);
    updateLater();
}

DesktopStatusBarItem::~DesktopStatusBarItem() = default;

void DesktopStatusBarItem::setAutosaveName(const QString &name) {
    _look.name = QStringLiteral("barquell-") + name;
}

void DesktopStatusBarItem::setRemovalAllowed(bool /*allowed*/) {
    // Panels hide items by their own settings and keep that to themselves.
}

void DesktopStatusBarItem::setVisible(bool visible) {
    _look.visible = visible;
    updateLater();
    if (const auto changed = _visibilityChanged) { // who hears it may drop the item
        changed(visible);
    }
}

void DesktopStatusBarItem::watchVisibility(std::function<void(bool visible)> changed) {
    _visibilityChanged = std::move(changed);
}

void DesktopStatusBarItem::setImage(const QIcon &image) {
    _look.image = image;
    updateLater();
}

void DesktopStatusBarItem::setToolTip(const QString &text) {
    _look.toolTip = text;
    updateLater();
}

void DesktopStatusBarItem::setOpacity(double opacity) {
    _look.opacity = opacity;
    updateLater();
}

void DesktopStatusBarItem::performClick() {
    openMenu(QCursor::pos());
}

void DesktopStatusBarItem::setClickHandler(std::function<bool(const StatusItemClick &)> handler) {
    _clickHandler = std::move(handler);
}

bool DesktopStatusBarItem::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::ApplicationPaletteChange) {
        updateLater();
    }
    return QObject::eventFilter(watched, event);
}

/// One change on the panel for all that is set in a row.
void DesktopStatusBarItem::updateLater() {
    if (!std::exchange(_updatePending, true)) {
        QMetaObject::invokeMethod(this, &DesktopStatusBarItem::update, Qt::QueuedConnection);
    }
}

void DesktopStatusBarItem::update() {
    _updatePending = false;
    if (!_watcher.isKnown()) {
        return; // the answer brings us back
    }
    _look.color = QGuiApplication::palette().color(QPalette::WindowText);
    _notifierItem.show(_look);
    if (_watcher.hasHost()) {
        _trayItem.reset();
        return;
    }
    if (!_trayItem) {
        _trayItem = std::make_unique<TrayItem>();
        connect(_trayItem.get(), &TrayItem::clicked, this, &DesktopStatusBarItem::click,
                Qt::QueuedConnection);
    }
    _trayItem->show(_look);
}

void DesktopStatusBarItem::click(bool right, const QPoint &position) {
    const auto handler = _clickHandler;
    const QPointer<DesktopStatusBarItem> self(this);
    const bool ended = handler && handler({.modifierFlags = heldModifiers(), .right = right});
    if (self && !ended) {
        openMenu(position);
    }
}

void DesktopStatusBarItem::openMenu(const QPoint &position) {
    if (_menu) {
        _menu->popup(position);
    }
}

} // namespace barquell
