#pragma once

#include "evdev/InputEvent.h"
#include "platform/Event.h"

#include <bitset>
#include <optional>

namespace barquell::evdev {

/// The flags that a modifier key holds while it is down, generic and side bit; 0 for every other key. Key
/// codes: linux/input-event-codes.h.
ModifierFlags modifierFlagsOf(std::uint16_t keyCode);

/// Is it one of the keys that macOS reports as system-defined events (NX_KEYTYPE_… in
/// IOKit/hidsystem/ev_keymap.h)?
bool isMediaKey(std::uint16_t keyCode);

/// What one keyboard's key events mean to Barquell. Repeated downs and orphan ups mean nothing.
class KeyMeaning {
public:
    /// FlagsChanged where the modifiers of this keyboard changed, SystemDefined where a media key went down,
    /// up or repeated, nothing otherwise.
    std::optional<EventType> feed(const InputEvent &event);

    ModifierFlags flags() const { return _flags; }

private:
    static constexpr std::size_t kKeys = 0x300;

    void updateFlags();

    std::bitset<kKeys> _held; // modifiers and media keys alone
    ModifierFlags _flags = 0;
};

} // namespace barquell::evdev
