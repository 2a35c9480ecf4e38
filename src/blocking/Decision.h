#pragma once

#include "platform/Event.h"

#include <cstdint>
#include <string>

/// What blocking decides, as pure functions of an event and a state: recorded events drive them as well as
/// live ones. Nothing here allocates but maskNames().
namespace barquell::blocking {

/// The modifiers that can be chosen as pause keys and have two sides. Type 1 is left, 2 is right, every other
/// value either side.
enum class SidedModifier { Command, Option, Control, Shift };

inline constexpr SidedModifier kSidedModifiers[] = {SidedModifier::Command, SidedModifier::Option,
                                                    SidedModifier::Control, SidedModifier::Shift};

struct SidedModifierBits {
    ModifierFlags generic;
    ModifierFlags left;
    ModifierFlags right;
};

SidedModifierBits bitsOf(SidedModifier modifier);

/// The settings word with one generic bit set or cleared.
ModifierFlags withPauseKey(ModifierFlags settings, ModifierFlags genericBit, bool on);

/// The settings word with at most one side bit of the modifier set. Side bits are kept while the modifier
/// itself is off, so that its side is remembered.
ModifierFlags withPauseKeyType(ModifierFlags settings, SidedModifier modifier, std::int64_t type);

/// The bits that pause blocking, from the settings word: a modifier that is on counts by its side bits where
/// it has any, else by its generic bit.
ModifierFlags pauseKeyMask(ModifierFlags settings);

/// The mask as the log names it: "[Fn|CmdR]".
std::string maskNames(ModifierFlags mask);

/// The events that a tap must see.
EventMask eventMask(bool clearPauseKeys);

/// All that a decision depends on.
struct State {
    bool enabled = false;                   ///< the user wants blocking
    std::uint32_t pauseFlags = 0;           ///< reasons to suspend it
    bool pauseKeyAllowed = false;           ///< pause keys are honoured
    bool clearPauseKeys = true;             ///< system-defined events lose the pause keys
    ModifierFlags pauseKeySettings = 0;     ///< the raw selection
    ModifierFlags pauseKeyMask = 0;         ///< what of it counts, see pauseKeyMask()
    ModifierFlags currentModifierFlags = 0; ///< the last flags seen
    bool effectivelyEnabled = false;        ///< the last effective state that was computed
};

/// Is blocking in force while these flags are held? Any one of the pause keys suffices to suspend it. Trust
/// and the presence of a tap have no say.
bool isEffective(const State &state, ModifierFlags flags);

/// Does an event of this type tell which modifiers are held?
bool recordsModifierFlags(const State &state, EventType type);

struct Decision {
    enum class Verdict { Pass, PassWithFlags, Swallow };

    Verdict verdict = Verdict::Pass;
    ModifierFlags flags = 0; ///< what the event goes on with, where its flags change

    bool operator==(const Decision &) const = default;
};

/// What becomes of an event. A gesture is asked for its touches only where they matter.
Decision decide(const State &state, EventType type, const Event &event);

} // namespace barquell::blocking
