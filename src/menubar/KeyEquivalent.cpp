#include "menubar/KeyEquivalent.h"

#include <QAction>
#include <QKeySequence>
#include <QVariant>

namespace barquell {

namespace {

constexpr const char *kKeyProperty = "keyEquivalent";
constexpr const char *kModifiersProperty = "keyEquivalentModifierMask";

} // namespace

QString keyEquivalent(const QAction &item) {
    return item.property(kKeyProperty).toString();
}

void setKeyEquivalent(QAction &item, const QString &keyEquivalent) {
    const QVariant modifiers = item.property(kModifiersProperty);
    item.setProperty(kKeyProperty, keyEquivalent);
    item.setShortcut(keyEquivalent.isEmpty() ? QKeySequence()
                                             : QKeySequence((modifiers.isValid() ? modifiers.toString()
                                                                                 : QStringLiteral("Ctrl+")) +
                                                            keyEquivalent.toUpper()));
    item.setShortcutVisibleInContextMenu(true);
}

} // namespace barquell
