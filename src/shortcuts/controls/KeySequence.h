#pragma once

#include "platform/ModifierFlags.h"

#include <QKeySequence>
#include <QString>

namespace barquell {

/// A key equivalent and its modifiers as the desktop writes them ("Ctrl+Alt+U"). The modifiers are physical:
/// Command is the key with the logo, whatever Qt calls it in this place. Empty where there is no key.
QKeySequence keySequence(const QString &keyEquivalent, ModifierFlags modifierMask);

} // namespace barquell
