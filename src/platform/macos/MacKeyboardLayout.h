#pragma once

#include "platform/KeyboardLayout.h"

namespace barquell {

/// The current ASCII-capable keyboard layout of the text input sources.
class MacKeyboardLayout final : public KeyboardLayout {
public:
    std::optional<QString> displayName(std::uint16_t keyCode) const override;
};

} // namespace barquell
