#include "evdev/TouchReader.h"

#include <algorithm>
#include <utility>

namespace barquell::evdev {

TouchReader::TouchReader(const DeviceDescription &bar)
    : _x(rangeOf(bar, kAbsMtPositionX)), _y(rangeOf(bar, kAbsMtPositionY)),
      _slotCount(std::min(bar.axes.at(kAbsMtSlot).maximum + 1, kMaximumSlots)) {
    _incoming.reserve(static_cast<std::size_t>(_slotCount));
    _contacts.reserve(static_cast<std::size_t>(_slotCount));
}

TouchReader::Range TouchReader::rangeOf(const DeviceDescription &bar, std::uint16_t code) {
    const AxisInfo &axis = bar.axes.at(code);
    const double minimum = axis.minimum;
    return {minimum, axis.maximum - minimum};
}

float TouchReader::Range::fraction(std::int32_t value) const {
    return static_cast<float>(std::clamp((value - minimum) / length, 0.0, 1.0));
}

bool TouchReader::feed(const InputEvent &event) {
    if (event.type == kEvSyn && event.code == kSynDropped) {
        _dropped = true;
    } else if (event.type == kEvSyn && event.code == kSynReport) {
        completeFrame();
        return true;
    } else if (_dropped) {
        // Neither whole nor to be trusted.
    } else if (event.type == kEvAbs) {
        feedAxis(event);
    } else if (event.type == kEvMsc && event.code == kMscTimestamp) {
        _incomingTimestamp = event.value;
    }
    return false;
}

void TouchReader::resync(const Contacts &held, std::int32_t slot) {
    _incoming.resize(std::max(_incoming.size(), std::min(held.size(), static_cast<std::size_t>(_slotCount))));
    for (std::size_t i = 0; i < _incoming.size(); ++i) {
        _incoming[i] = slotAt(held, i);
    }
    _slot = slot;
    _dropped = false;
    _incomingTimestamp.reset();
    completeFrame();
}

void TouchReader::feedAxis(const InputEvent &event) {
    if (event.code == kAbsMtSlot) {
        _slot = event.value;
        return;
    }
    if (_slot < 0 || _slot >= _slotCount) {
        return;
    }
    const auto index = static_cast<std::size_t>(_slot);
    if (index >= _incoming.size()) {
        _incoming.resize(index + 1);
    }
    Slot &slot = _incoming[index];
    if (event.code == kAbsMtTrackingId) {
        slot.trackingId = std::max(event.value, kNoContact);
    } else if (event.code >= Slot::kFirstAxis && event.code <= Slot::kLastAxis) {
        slot.axis(event.code) = event.value;
    }
}

void TouchReader::completeFrame() {
    if (_dropped) {
        // Which fingers are still there cannot be known from the stream. They count as gone, or one whose end
        // was lost would stay down for ever.
        for (Slot &slot : _incoming) {
            slot.trackingId = kNoContact;
        }
    }
    _frame.clear();
    _contacts.resize(_incoming.size()); // neither ever shrinks
    for (std::size_t i = 0; i < _incoming.size(); ++i) {
        addTouches(_contacts[i], _incoming[i]);
    }
    _contacts = _incoming;
    _timestamp = std::exchange(_incomingTimestamp, std::nullopt);
    _dropped = false;
}

void TouchReader::addTouches(const Slot &before, const Slot &now) {
    const bool same = before.trackingId == now.trackingId;
    if (before.isTouch() && !(now.isTouch() && same)) {
        const bool cancelled = _dropped || now.axis(kAbsMtToolType) == kMtToolPalm;
        _frame.add(touch(before, cancelled ? kTouchCancelled : kTouchEnded));
    }
    if (!now.isTouch()) {
        return;
    }
    if (!before.isTouch() || !same) {
        _frame.add(touch(now, kTouchBegan));
        return;
    }
    const bool moved = before.axis(kAbsMtPositionX) != now.axis(kAbsMtPositionX) ||
                       before.axis(kAbsMtPositionY) != now.axis(kAbsMtPositionY);
    _frame.add(touch(now, moved ? kTouchMoved : kTouchStationary));
}

Touch TouchReader::touch(const Slot &slot, TouchPhases phase) const {
    return {phase, slot.trackingId, _x.fraction(slot.axis(kAbsMtPositionX)),
            _y.fraction(slot.axis(kAbsMtPositionY))};
}

} // namespace barquell::evdev
