#include "evdev/CloneOutput.h"

#include <algorithm>

namespace barquell::evdev {

namespace {

// Tracking ids wrap round at 16 bits; half the circle back counts as older (TRKID_SGN in linux/input/mt.h).
constexpr std::int32_t kTrackingIdSign = 0x8000;

bool hasNewContact(const Slot &before, const Slot &now) {
    return before.trackingId >= 0 && now.trackingId >= 0 && before.trackingId != now.trackingId;
}

const Slot *oldestContact(const Contacts &contacts) {
    const Slot *oldest = nullptr;
    for (const Slot &slot : contacts) {
        const bool older = !oldest || ((slot.trackingId - oldest->trackingId) & kTrackingIdSign) != 0;
        if (slot.trackingId >= 0 && older) {
            oldest = &slot;
        }
    }
    return oldest;
}

} // namespace

CloneOutput::CloneOutput(const DeviceDescription &bar) : _hasTouchKey(bar.keys.test(kBtnTouch)) {
    for (const auto &[code, axis] : bar.axes) {
        if (code < _axes.size()) {
            _axes.set(code);
        }
    }
    _contacts.reserve(kMaximumSlots);
    _ended.reserve(kMaximumSlots);
    _goal.reserve(kMaximumSlots);
    _events.reserve(std::size_t{64});
}

const std::vector<InputEvent> &CloneOutput::moveTo(const Contacts &contacts, std::int64_t time,
                                                   std::optional<std::int32_t> timestamp) {
    _events.clear();
    _time = time;
    appendMove(contacts, timestamp);
    return _events;
}

const std::vector<InputEvent> &CloneOutput::endLifted(const Contacts &bar, std::int64_t time) {
    _events.clear();
    _time = time;
    _goal = _contacts;
    const auto hasLifted = [&](std::size_t i) {
        return _contacts[i].trackingId >= 0 && _contacts[i].trackingId != slotAt(bar, i).trackingId;
    };
    if (_axes.test(kAbsMtToolType)) {
        for (std::size_t i = 0; i < _goal.size(); ++i) {
            _goal[i].axis(kAbsMtToolType) = hasLifted(i) ? kMtToolPalm : _goal[i].axis(kAbsMtToolType);
        }
        appendMove(_goal, std::nullopt); // in a report of its own, while the contact is still there
    }
    for (std::size_t i = 0; i < _goal.size(); ++i) {
        _goal[i].trackingId = hasLifted(i) ? kNoContact : _goal[i].trackingId;
    }
    appendMove(_goal, std::nullopt);
    return _events;
}

void CloneOutput::appendMove(const Contacts &contacts, std::optional<std::int32_t> timestamp) {
    const std::size_t before = _events.size();
    _contacts.resize(std::max(_contacts.size(), contacts.size()));
    _ended = _contacts;
    for (std::size_t i = 0; i < contacts.size(); ++i) {
        if (hasNewContact(_contacts[i], contacts[i])) {
            _ended[i].trackingId = kNoContact;
        }
    }
    sendDifference(_ended);
    if (_events.size() != before) {
        send(kEvSyn, kSynReport, 0);
    }
    const std::size_t endings = _events.size();
    sendDifference(contacts);
    // A time stamp says nothing where no finger is on the clone.
    const bool worthReporting = _events.size() != endings || anyContact(_contacts);
    if (timestamp && worthReporting) {
        send(kEvMsc, kMscTimestamp, *timestamp);
    }
    if (_events.size() != endings) {
        send(kEvSyn, kSynReport, 0);
    }
}

void CloneOutput::sendDifference(const Contacts &contacts) {
    for (std::size_t i = 0; i < _contacts.size(); ++i) {
        sendSlot(static_cast<std::int32_t>(i), slotAt(contacts, i));
    }
    sendPointerEmulation();
}

void CloneOutput::sendSlot(std::int32_t index, const Slot &wanted) {
    Slot &sent = _contacts.at(static_cast<std::size_t>(index));
    const bool isOrWas = sent.trackingId >= 0 || wanted.trackingId >= 0;
    if (!isOrWas || sent == wanted) {
        return; // the axes of a slot that nobody touches can wait
    }
    // The tool goes first: a palm must be known before its contact ends, a finger before its contact begins.
    if (wanted.axis(kAbsMtToolType) != sent.axis(kAbsMtToolType)) {
        sendAxis(index, kAbsMtToolType, wanted.axis(kAbsMtToolType));
    }
    if (wanted.trackingId != sent.trackingId) {
        sendAxis(index, kAbsMtTrackingId, wanted.trackingId);
    }
    if (wanted.trackingId >= 0) {
        for (std::uint16_t code = Slot::kFirstAxis; code <= Slot::kLastAxis; ++code) {
            if (code != kAbsMtTrackingId && wanted.axis(code) != sent.axis(code)) {
                sendAxis(index, code, wanted.axis(code));
            }
        }
    }
}

void CloneOutput::sendAxis(std::int32_t index, std::uint16_t code, std::int32_t value) {
    if (_axes.test(code)) {
        sendChanged(kEvAbs, kAbsMtSlot, index, _slot);
        send(kEvAbs, code, value);
    }
    Slot &sent = _contacts.at(static_cast<std::size_t>(index));
    (code == kAbsMtTrackingId ? sent.trackingId : sent.axis(code)) = value;
}

void CloneOutput::sendPointerEmulation() {
    const Slot *oldest = oldestContact(_contacts);
    sendChanged(kEvKey, kBtnTouch, oldest ? 1 : 0, _touch);
    if (oldest) {
        sendChanged(kEvAbs, kAbsX, oldest->axis(kAbsMtPositionX), _x);
        sendChanged(kEvAbs, kAbsY, oldest->axis(kAbsMtPositionY), _y);
    }
    sendChanged(kEvAbs, kAbsPressure, oldest ? oldest->axis(kAbsMtPressure) : 0, _pressure);
}

void CloneOutput::sendChanged(std::uint16_t type, std::uint16_t code, std::int32_t value,
                              std::int32_t &sent) {
    const bool offered = type == kEvKey ? _hasTouchKey : _axes.test(code);
    if (value != sent && offered) {
        send(type, code, value);
        sent = value;
    }
}

void CloneOutput::send(std::uint16_t type, std::uint16_t code, std::int32_t value) {
    _events.push_back({_time, type, code, value});
}

} // namespace barquell::evdev
