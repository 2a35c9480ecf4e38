#pragma once

#include "platform/KeyEvents.h"

#include <QtCore/Qt>

#include <xkbcommon/xkbcommon.h>

#include <optional>

namespace barquell {

/// A key that holds one of Qt's modifiers while it is down, or (NoModifier) one that shortcuts know nothing
/// of, as Caps Lock and AltGr.
std::optional<Qt::KeyboardModifier> modifierOfKey(xkb_keysym_t keysym);

/// The generic flag of a modifier.
ModifierFlags flagOf(Qt::KeyboardModifier modifier, KeyMeanings meanings);

} // namespace barquell
