#pragma once

#include "platform/linux/keys/VirtualKeys.h"

#include <QString>

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <memory>
#include <optional>

namespace barquell {

/// The keyboard as it is laid out at one moment: up to four layouts, of which one is in use.
class Keymap {
public:
    /// From the rules of xkeyboard-config, as "us" or "ru,us" with as many variants; nothing where there are
    /// no such layouts.
    static std::optional<Keymap> fromNames(const char *layouts, const char *variants = "");

    /// Takes over what libxkbcommon made; nothing for nullptr.
    static std::optional<Keymap> owning(xkb_keymap *keymap);

    /// What the key types without modifiers in the first layout that types the letters a to z; nothing where
    /// no layout does. A dead key types its spacing form.
    std::optional<QString> asciiDisplayName(XKeyCode key) const;
    bool canTypeAscii() const { return asciiLayout().has_value(); }

    /// What the key types in a layout with no modifier but possibly Shift; empty where it types nothing.
    QString characters(XKeyCode key, std::uint32_t layout, bool shift) const;

private:
    explicit Keymap(xkb_keymap *keymap);

    std::optional<xkb_layout_index_t> asciiLayout() const;
    xkb_keysym_t plainKeysym(xkb_keycode_t key, xkb_layout_index_t layout) const;

    std::shared_ptr<xkb_keymap> _keymap;
};

using XkbContext = std::unique_ptr<xkb_context, decltype(&xkb_context_unref)>;
XkbContext makeXkbContext();

} // namespace barquell
