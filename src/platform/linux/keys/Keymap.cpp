#include "platform/linux/keys/Keymap.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <array>
#include <bitset>

namespace barquell {

namespace {

struct DeadKey {
    xkb_keysym_t keysym;
    char16_t spacing;
};

/// The characters that look like the dead keys' marks and take a place of their own (Unicode's ASCII, Latin-1
/// Supplement and Spacing Modifier Letters).
constexpr std::array kDeadKeys{
    DeadKey{XKB_KEY_dead_grave, u'`'},
    DeadKey{XKB_KEY_dead_acute, u'´'},
    DeadKey{XKB_KEY_dead_circumflex, u'^'},
    DeadKey{XKB_KEY_dead_tilde, u'~'},
    DeadKey{XKB_KEY_dead_macron, u'¯'},
    DeadKey{XKB_KEY_dead_breve, u'˘'},
    DeadKey{XKB_KEY_dead_abovedot, u'˙'},
    DeadKey{XKB_KEY_dead_diaeresis, u'¨'},
    DeadKey{XKB_KEY_dead_abovering, u'˚'},
    DeadKey{XKB_KEY_dead_doubleacute, u'˝'},
    DeadKey{XKB_KEY_dead_caron, u'ˇ'},
    DeadKey{XKB_KEY_dead_cedilla, u'¸'},
    DeadKey{XKB_KEY_dead_ogonek, u'˛'},
    DeadKey{XKB_KEY_dead_iota, u'ͺ'},
    DeadKey{XKB_KEY_dead_stroke, u'/'},
    DeadKey{XKB_KEY_dead_greek, u'µ'},
    DeadKey{XKB_KEY_dead_currency, u'¤'},
    DeadKey{XKB_KEY_dead_voiced_sound, u'゛'},
    DeadKey{XKB_KEY_dead_semivoiced_sound, u'゜'},
};

QString text(xkb_keysym_t keysym) {
    const auto *const dead = std::find_if(kDeadKeys.begin(), kDeadKeys.end(),
                                          [=](const DeadKey &each) { return each.keysym == keysym; });
    if (dead != kDeadKeys.end()) {
        return QChar(dead->spacing);
    }
    const char32_t character = xkb_keysym_to_utf32(keysym);
    return character == 0 ? QString() : QString::fromUcs4(&character, 1);
}

} // namespace

XkbContext makeXkbContext() {
    XkbContext context(xkb_context_new(XKB_CONTEXT_NO_FLAGS), xkb_context_unref);
    if (context) {
        // What is wrong with a keymap is told by getting none.
        xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    }
    return context;
}

Keymap::Keymap(xkb_keymap *keymap) : _keymap(keymap, xkb_keymap_unref) {}

std::optional<Keymap> Keymap::owning(xkb_keymap *keymap) {
    return keymap ? std::optional(Keymap(keymap)) : std::nullopt;
}

std::optional<Keymap> Keymap::fromNames(const char *layouts, const char *variants) {
    const XkbContext context = makeXkbContext();
    if (!context) {
        return std::nullopt;
    }
    const xkb_rule_names names{"evdev", "pc105", layouts, variants, ""};
    return owning(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

xkb_keysym_t Keymap::plainKeysym(xkb_keycode_t key, xkb_layout_index_t layout) const {
    const xkb_keysym_t *keysyms = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(_keymap.get(), key, layout, 0, &keysyms);
    return count == 1 ? *keysyms : XKB_KEY_NoSymbol;
}

std::optional<xkb_layout_index_t> Keymap::asciiLayout() const {
    constexpr std::size_t kLetters = 26;
    for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(_keymap.get()); ++layout) {
        std::bitset<kLetters> typed;
        for (xkb_keycode_t key = xkb_keymap_min_keycode(_keymap.get());
             key <= xkb_keymap_max_keycode(_keymap.get()); ++key) {
            const xkb_keysym_t keysym = plainKeysym(key, layout);
            if (keysym >= XKB_KEY_a && keysym <= XKB_KEY_z) {
                typed.set(keysym - XKB_KEY_a);
            }
        }
        if (typed.all()) {
            return layout;
        }
    }
    return std::nullopt;
}

std::optional<QString> Keymap::asciiDisplayName(XKeyCode key) const {
    const auto layout = asciiLayout();
    const QString name = layout ? text(plainKeysym(key, *layout)) : QString();
    return name.isEmpty() || !name.front().isPrint() ? std::nullopt : std::optional(name);
}

QString Keymap::characters(XKeyCode key, std::uint32_t layout, bool shift) const {
    const std::unique_ptr<xkb_state, decltype(&xkb_state_unref)> state(xkb_state_new(_keymap.get()),
                                                                       xkb_state_unref);
    const xkb_mod_index_t index = xkb_keymap_mod_get_index(_keymap.get(), XKB_MOD_NAME_SHIFT);
    const xkb_mod_mask_t mask = shift && index != XKB_MOD_INVALID ? 1U << index : 0;
    xkb_state_update_mask(state.get(), mask, 0, 0, 0, 0, layout);
    return text(xkb_state_key_get_one_sym(state.get(), key));
}

} // namespace barquell
