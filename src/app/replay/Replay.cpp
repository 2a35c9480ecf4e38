#include "app/replay/Replay.h"

#include "app/RegisteredDefaults.h"
#include "app/replay/Timeline.h"
#include "blocking/TouchBarInterceptor.h"
#include "evdev/DeviceKind.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"

#include <algorithm>
#include <utility>

namespace barquell::replay {

namespace {

/// Everything that the services of the process hold on to.
struct Place {
    VirtualRunLoop loop;
    ScriptedPlatform platform;
};

Place &place() {
    static Place place;
    return place;
}

Reason reasonFor(const ScriptedEvent &event, ModifierFlags held, bool passed) {
    if (!passed) {
        return Reason::Touching;
    }
    if (event.type == EventType::SystemDefined && event.flags() != held) {
        return Reason::ModifiersStripped;
    }
    if (event.type != EventType::Gesture) {
        return Reason::NotHeldBack;
    }
    if (event.touchCount(kTouching) == 0) {
        return Reason::NothingTouches;
    }
    if (!TouchBarInterceptor::enabled()) {
        return Reason::BlockingOff;
    }
    if (!place().platform.trust.trusted) {
        return Reason::NotTrusted;
    }
    return TouchBarInterceptor::pauseFlags() != 0 ? Reason::Paused : Reason::PauseKeyHeld;
}

} // namespace

Replay::Replay(std::vector<recording::RecordedDevice> devices, ReplayListener &listener)
    : _devices(std::move(devices)), _listener(listener) {
    // What the keyboards say at a moment comes before what the bar says at it.
    std::stable_partition(_devices.begin(), _devices.end(),
                          [](const auto &device) { return !evdev::isTouchBar(device.description); });
    for (const recording::RecordedDevice &device : _devices) {
        _roles.push_back(roleOf(device.description));
    }
}

Replay::Role Replay::roleOf(const evdev::DeviceDescription &device) {
    if (evdev::isTouchBar(device)) {
        return FilteredBar(device);
    }
    return evdev::isKeyboard(device) ? Role(evdev::KeyMeaning()) : Role();
}

void Replay::run(const ReplaySettings &settings) {
    Timeline timeline(_devices);
    bool started = false;
    while (!timeline.atEnd()) {
        const auto [index, event] = timeline.next();
        if (!std::exchange(started, true)) {
            _startTime = event.time;
            start(settings);
        }
        advanceTo(event.time);
        const std::string &name = _devices.at(index).description.name;
        if (auto *bar = std::get_if<FilteredBar>(&_roles.at(index))) {
            feedBar(*bar, name, event);
        } else if (auto *keys = std::get_if<evdev::KeyMeaning>(&_roles.at(index))) {
            feedKeyboard(*keys, name, event);
        }
    }
    if (!started) {
        start(settings);
    }
    setLogSink({});
}

void Replay::start(const ReplaySettings &settings) {
    Place &here = place();
    RunLoop::setMain(&here.loop);
    here.platform.install();
    here.platform.trust.trusted = settings.trusted;
    setLogSink([this](const QString &line) { _listener.logged(line); });
    NotificationCenter::defaultCenter().addObserver(
        _observer, touchBarStateChangedNotification(), [this](const Notification &notification) {
            _listener.stateChange({_startTime + place().loop.now().count(),
                                   notification.userInfo.value(QStringLiteral("source")).toInt(),
                                   TouchBarInterceptor::effectivelyEnabled()});
        });
    for (auto entry = settings.stored.begin(); entry != settings.stored.end(); ++entry) {
        here.platform.settings.write(entry.key(), entry.value());
    }
    registerDefaults(UserDefaults::standard());
    TouchBarInterceptor::subscribeToUserDefaults();
    TouchBarInterceptor::updatePauseFlags(settings.pauseFlags, true);
}

void Replay::advanceTo(std::int64_t time) {
    place().loop.advanceTo(std::chrono::microseconds(time - _startTime));
}

void Replay::feedBar(FilteredBar &bar, const std::string &name, const evdev::InputEvent &event) {
    const auto frame = bar.feed(event, heldModifiers(), place().platform.taps);
    if (!frame) {
        return;
    }
    report(frame->gesture, name, frame->passed);
    if (_emit && !frame->sent.empty()) {
        _emit(frame->sent);
    }
}

void Replay::feedKeyboard(evdev::KeyMeaning &keys, const std::string &name, const evdev::InputEvent &event) {
    if (const auto type = keys.feed(event)) {
        place().platform.modifiers.flags = heldModifiers();
        ScriptedEvent keyEvent(*type, heldModifiers());
        const bool passed = place().platform.taps.deliver(keyEvent);
        report(keyEvent, name, passed);
    }
}

void Replay::report(const ScriptedEvent &event, const std::string &device, bool passed) {
    constexpr TouchPhases kAny = kTouching | kTouchEnded | kTouchCancelled;
    const std::int64_t now = _startTime + place().loop.now().count();
    _listener.event({now, device, event.type, event.flags(), event.touchCount(kAny),
                     event.touchCount(kTouching), passed, reasonFor(event, heldModifiers(), passed)});
}

ModifierFlags Replay::heldModifiers() const {
    ModifierFlags flags = 0;
    for (const Role &role : _roles) {
        if (const auto *keys = std::get_if<evdev::KeyMeaning>(&role)) {
            flags |= keys->flags();
        }
    }
    return flags;
}

} // namespace barquell::replay
