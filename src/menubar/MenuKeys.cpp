#include "menubar/MenuKeys.h"

#include <QKeyEvent>
#include <QMenu>

namespace barquell {

namespace {

QAction *itemWithKey(const QMenu &menu, const QKeyEvent &event) {
    const QKeySequence pressed(
        QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, static_cast<Qt::Key>(event.key())));
    if (pressed.isEmpty()) {
        return nullptr; // a key that Qt has no name for would be that of each item without one
    }
    for (QAction *item : menu.actions()) {
        if (item->isVisible() && item->isEnabled() && item->shortcut() == pressed) {
            return item;
        }
    }
    return nullptr;
}

} // namespace

MenuKeys::MenuKeys(QMenu &menu) {
    menu.installEventFilter(this);
}

bool MenuKeys::eventFilter(QObject *watched, QEvent *event) {
    auto *menu = qobject_cast<QMenu *>(watched);
    if (!menu || event->type() != QEvent::KeyPress) {
        return false;
    }
    QAction *item = itemWithKey(*menu, *static_cast<QKeyEvent *>(event));
    if (!item) {
        return false;
    }
    menu->close(); // first, as with every choice
    item->trigger();
    return true;
}

} // namespace barquell
