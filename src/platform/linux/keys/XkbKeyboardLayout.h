#pragma once

#include "platform/KeyboardLayout.h"
#include "platform/linux/keys/Keymap.h"

#include <functional>

namespace barquell {

/// Names keys by what libxkbcommon knows of them. Where no layout of the keyboard can type ASCII, and where
/// nothing can be learned of it, the US layout names them.
class XkbKeyboardLayout final : public KeyboardLayout {
public:
    using Source = std::function<std::optional<Keymap>()>;
    explicit XkbKeyboardLayout(Source keymapNow) : _keymapNow(std::move(keymapNow)) {}

    std::optional<QString> displayName(std::uint16_t keyCode) const override;

private:
    Source _keymapNow;
};

} // namespace barquell
