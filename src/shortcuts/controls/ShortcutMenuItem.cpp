#include "shortcuts/controls/ShortcutMenuItem.h"

#include "shortcuts/controls/KeySequence.h"

namespace barquell {

ShortcutMenuItem::ShortcutMenuItem(QObject *parent) : QAction(parent) {
    setShortcutContext(Qt::WidgetShortcut); // no widget with the focus ever has it, so Qt never triggers it
    setShortcutVisibleInContextMenu(true);
}

void ShortcutMenuItem::awakeFromNib() {
    if (ShortcutMonitor *monitor = ShortcutMonitor::monitorWithName(_shortcutName)) {
        monitor->addChangeListener(this, true);
    }
}

void ShortcutMenuItem::shortcutMonitorDidChange(ShortcutMonitor *monitor) {
    if (monitor->enabled() && monitor->shortcut()) {
        setKeyEquivalent(monitor->shortcut()->keyEquivalentString().value_or(QString()),
                         monitor->shortcut()->modifierFlags());
    } else {
        setKeyEquivalent(QStringLiteral(""), 0);
    }
}

void ShortcutMenuItem::setKeyEquivalent(const QString &keyEquivalent, ModifierFlags modifierMask) {
    _keyEquivalent = keyEquivalent;
    _keyEquivalentModifierMask = modifierMask;
    setShortcut(keySequence(keyEquivalent, modifierMask));
}

} // namespace barquell
