#include "blocking/TouchBarInterceptor.h"

#include "blocking/Decision.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "observing/KeyValueFunctionObserver.h"
#include "platform/EventTap.h"
#include "platform/ModifierState.h"
#include "platform/Platform.h"

#include <array>
#include <memory>
#include <utility>

namespace barquell {

using blocking::Decision;
using blocking::SidedModifier;

namespace {

/// What a decision depends on, and the tap.
struct Static : blocking::State {
    std::unique_ptr<EventTap> eventTap;
    std::unique_ptr<EventTapSource> eventTapSource;
};

Static &state() {
    static Static instance;
    return instance;
}

void updateEffectiveState(StateChangeSource source, ModifierFlags flags) {
    const bool effective = blocking::isEffective(state(), flags);
    if (effective == state().effectivelyEnabled) {
        return;
    }
    state().effectivelyEnabled = effective;
    NotificationCenter::defaultCenter().post({touchBarStateChangedNotification(),
                                              nullptr,
                                              {{QStringLiteral("source"), static_cast<int>(source)}}});
}

enum class Announce { No, Yes };

void destroyEventTap(Announce announce) {
    state().eventTapSource.reset();
    if (state().eventTap) {
        state().eventTap->setEnabled(false);
        state().eventTap.reset();
    }
    if (announce == Announce::Yes) {
        updateEffectiveState(StateChangeSourceTap, state().currentModifierFlags);
    }
}

void handleTapDisabledByTimeout() {
    if (!TrustedProcessChecker::checkIsTrustedAfterTimeout()) {
        log(QStringLiteral("Received kCGEventTapDisabledByTimeout event. Process is not trusted..."));
        destroyEventTap(Announce::Yes);
        return;
    }
    log(QStringLiteral("Received kCGEventTapDisabledByTimeout event. Re-enabling..."));
    if (state().eventTap && state().pauseFlags == 0) {
        state().eventTap->setEnabled(true);
    }
}

Event *apply(const Decision &decision, Event *event) {
    switch (decision.verdict) {
    case Decision::Verdict::Swallow:
        return nullptr;
    case Decision::Verdict::PassWithFlags:
        event->setFlags(decision.flags);
        break;
    case Decision::Verdict::Pass:
        break;
    }
    return event;
}

Event *eventTapCallback(EventType type, Event *event) {
    if (type == EventType::TapDisabledByTimeout) {
        handleTapDisabledByTimeout();
        return event;
    }
    if (!event) {
        return nullptr;
    }
    if (blocking::recordsModifierFlags(state(), type)) {
        state().currentModifierFlags = event->flags();
        updateEffectiveState(StateChangeSourcePauseKeys, state().currentModifierFlags);
    }
    return apply(blocking::decide(state(), type, *event), event);
}

void createEventTap() {
    state().eventTap =
        platform().eventTaps->create(blocking::eventMask(state().clearPauseKeys), eventTapCallback);
    if (!state().eventTap) {
        log(QStringLiteral("Failed to create event tap"));
        return;
    }
    state().eventTapSource = state().eventTap->createRunLoopSource();
    if (!state().eventTapSource) {
        log(QStringLiteral("Failed to create event tap run loop source"));
        state().eventTap.reset();
        return;
    }
    state().eventTap->setEnabled(state().pauseFlags == 0);
    state().eventTapSource->addToMainRunLoop();
    updateEffectiveState(StateChangeSourceTap, state().currentModifierFlags);
}

void updatePauseKeyMask() {
    const ModifierFlags mask = blocking::pauseKeyMask(state().pauseKeySettings);
    if (mask == state().pauseKeyMask) {
        return;
    }
    state().pauseKeyMask = mask;
    updateEffectiveState(StateChangeSourcePauseKeys, state().currentModifierFlags);
    log(QString::fromStdString(blocking::maskNames(mask)));
}

void updateEnabledState() {
    if (state().enabled) {
        TrustedProcessChecker::addObserver(&TouchBarInterceptor::cls(), true);
        return;
    }
    TrustedProcessChecker::removeObserver(&TouchBarInterceptor::cls());
    destroyEventTap(Announce::Yes);
}

template <ModifierFlags Bit>
void storePauseKey(const QVariant &value) {
    state().pauseKeySettings = blocking::withPauseKey(state().pauseKeySettings, Bit, boolValue(value));
}

template <SidedModifier Modifier>
void storePauseKeyType(const QVariant &value) {
    state().pauseKeySettings =
        blocking::withPauseKeyType(state().pauseKeySettings, Modifier, integerValue(value));
}

template <ChangeFunction Store>
void changePauseKeySettings(const QVariant &value) {
    const ModifierFlags before = state().pauseKeySettings;
    Store(value);
    if (state().pauseKeySettings != before) {
        updatePauseKeyMask();
    }
}

/// Stores the value of a boolean setting; true where that changed it.
template <bool blocking::State::*Field>
bool store(const QVariant &value) {
    const bool before = std::exchange(state().*Field, boolValue(value));
    return before != state().*Field;
}

template <bool blocking::State::*Field>
void storeInitial(const QVariant &value) {
    store<Field>(value);
}

void changePauseKeyAllowed(const QVariant &value) {
    if (store<&blocking::State::pauseKeyAllowed>(value)) {
        state().currentModifierFlags = platform().modifierState->currentFlags();
        updateEffectiveState(StateChangeSourcePauseKeys, state().currentModifierFlags);
    }
}

/// The mask of a tap depends on this setting, so the tap is made anew.
void changeClearPauseKeys(const QVariant &value) {
    if (!store<&blocking::State::clearPauseKeys>(value) || !state().enabled) {
        return;
    }
    destroyEventTap(Announce::No);
    if (TrustedProcessChecker::isTrusted()) {
        createEventTap();
    }
    updateEffectiveState(StateChangeSourceTap, state().currentModifierFlags);
}

void changeEnabled(const QVariant &value) {
    if (store<&blocking::State::enabled>(value)) {
        updateEnabledState();
    }
}

/// A setting, how its value at launch is stored without side effects, and what a new value does.
struct Setting {
    const char *key;
    ChangeFunction store;
    ChangeFunction change;
};

template <ModifierFlags Bit>
constexpr Setting pauseKey(const char *key) {
    return {key, storePauseKey<Bit>, changePauseKeySettings<storePauseKey<Bit>>};
}

template <SidedModifier Modifier>
constexpr Setting pauseKeyType(const char *key) {
    return {key, storePauseKeyType<Modifier>, changePauseKeySettings<storePauseKeyType<Modifier>>};
}

constexpr std::array kSettings{
    pauseKey<kFlagFn>("PauseKeyFn"),
    pauseKey<kFlagCommand>("PauseKeyCommand"),
    pauseKeyType<SidedModifier::Command>("PauseKeyCommandType"),
    pauseKey<kFlagOption>("PauseKeyOption"),
    pauseKeyType<SidedModifier::Option>("PauseKeyOptionType"),
    pauseKey<kFlagControl>("PauseKeyControl"),
    pauseKeyType<SidedModifier::Control>("PauseKeyControlType"),
    pauseKey<kFlagShift>("PauseKeyShift"),
    pauseKeyType<SidedModifier::Shift>("PauseKeyShiftType"),
    Setting{"PauseKeyAllowed", storeInitial<&blocking::State::pauseKeyAllowed>, changePauseKeyAllowed},
    Setting{"ClearPauseKeys", storeInitial<&blocking::State::clearPauseKeys>, changeClearPauseKeys},
    Setting{"Enabled", storeInitial<&blocking::State::enabled>, changeEnabled},
};

} // namespace

QString touchBarStateChangedNotification() {
    return QStringLiteral("com.vexolith.barquell.touch-bar-state-changed");
}

TouchBarInterceptor &TouchBarInterceptor::cls() {
    static TouchBarInterceptor instance;
    return instance;
}

void TouchBarInterceptor::processTrustedStateDidChange(bool trusted) {
    if (!trusted || !state().enabled) {
        destroyEventTap(Announce::Yes);
    } else if (!state().eventTap) {
        createEventTap();
    }
}

bool TouchBarInterceptor::enabled() {
    return state().enabled;
}

std::uint32_t TouchBarInterceptor::pauseFlags() {
    return state().pauseFlags;
}

void TouchBarInterceptor::updatePauseFlags(std::uint32_t flags, bool set) {
    const bool anySet = (state().pauseFlags & flags) != 0;
    if (anySet == set) {
        return;
    }
    state().pauseFlags = set ? state().pauseFlags | flags : state().pauseFlags & ~flags;
    if (state().eventTap) {
        state().eventTap->setEnabled(state().pauseFlags == 0);
    }
    updateEffectiveState(StateChangeSourcePauseFlags, state().currentModifierFlags);
}

bool TouchBarInterceptor::effectivelyEnabled() {
    return state().effectivelyEnabled;
}

ModifierFlags TouchBarInterceptor::pauseKeysHeld() {
    return state().pauseKeyAllowed ? platform().modifierState->currentFlags() & state().pauseKeyMask : 0;
}

void TouchBarInterceptor::requestAuthorization() {
    constexpr EventMask kEveryEvent = ~EventMask{0};
    platform().eventTaps->create(kEveryEvent, [](EventType, Event *event) { return event; });
}

void TouchBarInterceptor::subscribeToUserDefaults() {
    UserDefaults &defaults = UserDefaults::standard();
    for (const Setting &setting : kSettings) {
        const QString key = QString::fromLatin1(setting.key);
        defaults.addObserver(KeyValueFunctionObserver::cls(), key, setting.change);
        setting.store(defaults.objectForKey(key));
    }
    updatePauseKeyMask();
    updateEnabledState();
}

} // namespace barquell
