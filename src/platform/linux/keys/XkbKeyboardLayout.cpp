#include "platform/linux/keys/XkbKeyboardLayout.h"

namespace barquell {

std::optional<QString> XkbKeyboardLayout::displayName(std::uint16_t keyCode) const {
    const auto key = xKeyCodeForVirtualKey(keyCode);
    if (!key) {
        return std::nullopt;
    }
    auto keymap = _keymapNow();
    if (!keymap || !keymap->canTypeAscii()) {
        keymap = Keymap::fromNames("us");
    }
    return keymap ? keymap->asciiDisplayName(*key) : std::nullopt;
}

} // namespace barquell
