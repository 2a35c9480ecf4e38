#pragma once

#include <QString>

class QAction;

namespace barquell {

/// The key that chooses a menu item, without modifiers: "q"; empty for none.
QString keyEquivalent(const QAction &item);

/// Gives the item its key, together with the modifiers that the interface file names in the item's dynamic
/// property "keyEquivalentModifierMask" as the beginning of a key sequence ("Ctrl+Shift+"); "Ctrl+" where it
/// names none. For the keys of our own menus Control stands for Command.
void setKeyEquivalent(QAction &item, const QString &keyEquivalent);

} // namespace barquell
