#include "blocking/Decision.h"

#include <array>

namespace barquell::blocking {

namespace {

struct BitName {
    ModifierFlags bit;
    const char *name;
};

constexpr std::array<BitName, 13> kBitNames{{{kFlagFn, "Fn"},
                                             {kFlagCommand, "Cmd"},
                                             {kFlagLeftCommand, "CmdL"},
                                             {kFlagRightCommand, "CmdR"},
                                             {kFlagControl, "Ctrl"},
                                             {kFlagLeftControl, "CtrlL"},
                                             {kFlagRightControl, "CtrlR"},
                                             {kFlagOption, "Alt"},
                                             {kFlagLeftOption, "AltL"},
                                             {kFlagRightOption, "AltR"},
                                             {kFlagShift, "Shift"},
                                             {kFlagLeftShift, "ShiftL"},
                                             {kFlagRightShift, "ShiftR"}}};

ModifierFlags contribution(ModifierFlags settings, const SidedModifierBits &bits) {
    const ModifierFlags sides = settings & (bits.left | bits.right);
    const bool on = (settings & bits.generic) != 0;
    return on && sides != 0 ? sides : settings & bits.generic;
}

Decision decideGesture(const State &state, const Event &event) {
    const bool pauseKeyHeld = state.pauseKeyAllowed && (state.pauseKeyMask & event.flags()) != 0;
    if (pauseKeyHeld || event.gestureKind() != kGestureKindDirectTouch) {
        return {};
    }
    // A touch that ended or was cancelled may finish, or one that began before blocking would stick.
    if (event.touchCount(kTouching) == 0) {
        return {};
    }
    return {Decision::Verdict::Swallow};
}

Decision decideSystemDefined(const State &state, const Event &event) {
    if (!state.clearPauseKeys || !state.pauseKeyAllowed) {
        return {};
    }
    const ModifierFlags flags = event.flags();
    // The settings word and not the mask: side bits go as well, also those of a modifier that is off.
    const bool carriesPauseKeys = (state.pauseKeySettings & flags) != 0;
    if (!carriesPauseKeys || event.sourceProcessId() != 0) {
        return {};
    }
    return {Decision::Verdict::PassWithFlags, flags & ~state.pauseKeySettings};
}

} // namespace

SidedModifierBits bitsOf(SidedModifier modifier) {
    switch (modifier) {
    case SidedModifier::Command:
        return {kFlagCommand, kFlagLeftCommand, kFlagRightCommand};
    case SidedModifier::Option:
        return {kFlagOption, kFlagLeftOption, kFlagRightOption};
    case SidedModifier::Control:
        return {kFlagControl, kFlagLeftControl, kFlagRightControl};
    case SidedModifier::Shift:
        break;
    }
    return {kFlagShift, kFlagLeftShift, kFlagRightShift};
}

ModifierFlags withPauseKey(ModifierFlags settings, ModifierFlags genericBit, bool on) {
    return on ? settings | genericBit : settings & ~genericBit;
}

ModifierFlags withPauseKeyType(ModifierFlags settings, SidedModifier modifier, std::int64_t type) {
    const SidedModifierBits bits = bitsOf(modifier);
    const ModifierFlags cleared = settings & ~(bits.left | bits.right);
    if (type == 1) {
        return cleared | bits.left;
    }
    return type == 2 ? cleared | bits.right : cleared;
}

ModifierFlags pauseKeyMask(ModifierFlags settings) {
    ModifierFlags mask = settings & kFlagFn;
    for (const SidedModifier modifier : kSidedModifiers) {
        mask |= contribution(settings, bitsOf(modifier));
    }
    return mask;
}

std::string maskNames(ModifierFlags mask) {
    std::string names;
    for (const BitName &entry : kBitNames) {
        if ((mask & entry.bit) != 0) {
            names += names.empty() ? "" : "|";
            names += entry.name;
        }
    }
    return '[' + names + ']';
}

EventMask eventMask(bool clearPauseKeys) {
    const EventMask always = maskOf(EventType::FlagsChanged) | maskOf(EventType::Gesture);
    return clearPauseKeys ? always | maskOf(EventType::SystemDefined) : always;
}

bool isEffective(const State &state, ModifierFlags flags) {
    const bool pauseKeyHeld = state.pauseKeyAllowed && (state.pauseKeyMask & flags) != 0;
    return state.enabled && state.pauseFlags == 0 && !pauseKeyHeld;
}

bool recordsModifierFlags(const State &state, EventType type) {
    return type == EventType::FlagsChanged || (type == EventType::Gesture && state.pauseKeyAllowed);
}

Decision decide(const State &state, EventType type, const Event &event) {
    switch (type) {
    case EventType::Gesture:
        return decideGesture(state, event);
    case EventType::SystemDefined:
        return decideSystemDefined(state, event);
    default:
        return {};
    }
}

} // namespace barquell::blocking
