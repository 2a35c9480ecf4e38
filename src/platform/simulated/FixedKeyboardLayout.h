#pragma once

#include "platform/KeyboardLayout.h"

namespace barquell {

/// The US layout, whatever the user's keyboard is.
class FixedKeyboardLayout final : public KeyboardLayout {
public:
    std::optional<QString> displayName(std::uint16_t keyCode) const override;

    /// The key that types the character, in lower case, without modifiers.
    static std::optional<std::uint16_t> keyCodeFor(QChar character);
};

} // namespace barquell
