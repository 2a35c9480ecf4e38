#include "platform/simulated/ScriptedEventTaps.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace barquell {

class ScriptedEventTaps::Tap final : public EventTap {
public:
    Tap(ScriptedEventTaps &taps, EventMask mask, EventTapCallback callback)
        : _taps(taps), _mask(mask), _callback(callback) {
        _taps._taps.push_back(this);
    }

    ~Tap() override {
        _taps.journal.emplace_back("release tap");
        std::erase(_taps._taps, this);
    }

    Tap(const Tap &) = delete;
    Tap &operator=(const Tap &) = delete;

    void setEnabled(bool enabled) override {
        _taps.journal.emplace_back(enabled ? "enable tap" : "disable tap");
        _enabled = enabled;
    }

    std::unique_ptr<EventTapSource> createRunLoopSource() override;

    bool delivers() const { return _enabled && _attached; }
    bool wants(EventType type) const { return (_mask & maskOf(type)) != 0; }
    EventTapCallback handler() const { return _callback; }
    void disable() { _enabled = false; }
    void attach(bool attached) { _attached = attached; }
    ScriptedEventTaps &taps() { return _taps; }

private:
    ScriptedEventTaps &_taps;
    EventMask _mask;
    EventTapCallback _callback;
    bool _enabled = true; // as the system makes them
    bool _attached = false;
};

class ScriptedEventTaps::Source final : public EventTapSource {
public:
    explicit Source(Tap &tap) : _tap(tap) {}

    ~Source() override {
        _tap.taps().journal.emplace_back("release source");
        _tap.attach(false);
    }

    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;

    void addToMainRunLoop() override {
        _tap.taps().journal.emplace_back("add source");
        _tap.attach(true);
    }

private:
    Tap &_tap;
};

std::unique_ptr<EventTapSource> ScriptedEventTaps::Tap::createRunLoopSource() {
    if (_taps.refuseSources) {
        return nullptr;
    }
    _taps.journal.emplace_back("create source");
    return std::make_unique<Source>(*this);
}

std::unique_ptr<EventTap> ScriptedEventTaps::create(EventMask mask, EventTapCallback callback) {
    if (!_trust.isProcessTrusted()) {
        ++_timesAsked;
        if (userWasAsked) {
            userWasAsked();
        }
        return nullptr;
    }
    if (refuseTaps) {
        return nullptr;
    }
    std::array<char, 32> line{};
    std::snprintf(line.data(), line.size(), "create tap 0x%llX", static_cast<unsigned long long>(mask));
    journal.emplace_back(line.data());
    return std::make_unique<Tap>(*this, mask, callback);
}

ScriptedEventTaps::Tap *ScriptedEventTaps::deliveringTap() const {
    const auto tap =
        std::find_if(_taps.begin(), _taps.end(), [](const Tap *each) { return each->delivers(); });
    return tap == _taps.end() ? nullptr : *tap;
}

EventTapCallback ScriptedEventTaps::installedCallback() const {
    return _taps.empty() ? nullptr : _taps.front()->handler();
}

bool ScriptedEventTaps::deliver(ScriptedEvent &event) {
    const Tap *tap = deliveringTap();
    return !tap || !tap->wants(event.type) || tap->handler()(event.type, &event) != nullptr;
}

void ScriptedEventTaps::timeOut() {
    if (Tap *tap = deliveringTap()) {
        tap->disable();
        tap->handler()(EventType::TapDisabledByTimeout, nullptr);
    }
}

} // namespace barquell
