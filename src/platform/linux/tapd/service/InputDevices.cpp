#include "platform/linux/tapd/service/InputDevices.h"

#include "evdev/DeviceKind.h"
#include "platform/linux/tapd/core/CloneDescription.h"
#include "platform/linux/tapd/kernel/DeviceQuery.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace barquell::tapd {

bool InputDevices::start() {
    _watch = DeviceWatch::start([this](const FoundDevice &device) { found(device); });
    if (!_watch || !_poller.add(Source::Devices, _watch->descriptor())) {
        return false;
    }
    _watch->scan();
    return true;
}

void InputDevices::close() {
    for (auto &[node, bar] : _bars) {
        _server.barRemoved(bar.device);
    }
    _bars.clear();
}

void InputDevices::found(const FoundDevice &device) {
    if (isKnown(device.sysname)) {
        return;
    }
    FileDescriptor node(::open(device.path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    const auto description = node.isValid() ? describe(node.get()) : std::nullopt;
    if (!description) {
        if (errno != ENOENT && errno != ENODEV) { // it may have gone meanwhile
            _log.line(device.path + ": left alone, " + std::strerror(errno));
        }
    } else if (physOf(node.get()) == kClonePhys) {
        foundClone(device.sysname);
    } else if (evdev::isTouchBar(*description)) {
        addBar(std::move(node), *description, device.sysname);
    } else if (evdev::hasTouchBarName(*description)) {
        _log.line(description->name + ": left alone, it calls itself a bar and cannot be one");
    } else if (evdev::hasModifierKey(*description)) {
        addKeyboard(std::move(node), *description, device.sysname);
    }
}

bool InputDevices::isKnown(const std::string &sysname) const {
    const auto matches = [&sysname](const auto &entry) { return entry.second.sysname == sysname; };
    return std::any_of(_bars.begin(), _bars.end(), matches) ||
           std::any_of(_keyboards.begin(), _keyboards.end(), matches);
}

void InputDevices::foundClone(const std::string &sysname) {
    for (auto &[node, bar] : _bars) {
        if (bar.device.cloneSysname() == sysname) {
            _server.cloneAppeared(bar.device, std::chrono::steady_clock::now());
        }
    }
}

void InputDevices::addBar(FileDescriptor node, const evdev::DeviceDescription &description,
                          const std::string &sysname) {
    const int key = node.get();
    auto &bar =
        _bars.emplace(key, Bar{KernelBar(std::move(node), description, _yard), sysname}).first->second;
    if (!_poller.add(Source::Bar, key) ||
        !_server.barAdded(description, bar.device, std::chrono::steady_clock::now())) {
        _bars.erase(key);
        _leftAlone = true;
    }
}

void InputDevices::addKeyboard(FileDescriptor node, const evdev::DeviceDescription &description,
                               const std::string &sysname) {
    if (_keyboards.size() == kMaximumKeyboards) {
        _log.line(description.name + ": left alone, there are too many keyboards");
        _leftAlone = true;
        return;
    }
    auto device = KernelKeyboard::of(std::move(node));
    if (!device || !_poller.add(Source::Keyboard, device->node())) {
        _log.line(description.name + ": left alone, its other keys cannot be hidden");
        return;
    }
    const int key = device->node();
    const auto modifiers = device->modifiers();
    _keyboards.emplace(key, Keyboard{std::move(*device), sysname});
    _server.keyboardAdded(key);
    _server.keyboardRead(key, modifiers);
}

void InputDevices::readBar(int node, Time now) {
    const auto bar = _bars.find(node);
    if (bar == _bars.end()) {
        return;
    }
    // Another bar of the same turn may have taken the room. One that is not read at all is here for its end.
    if (bar->second.isRead && !_server.reads(bar->second.device)) {
        return;
    }
    EventBatch batch;
    const ReadResult result = bar->second.device.read(batch);
    if (result.isGone) {
        _log.line(bar->second.device.description().name + ": unplugged");
        _server.barRemoved(bar->second.device);
        _bars.erase(bar);
        _roomAgain = true;
    } else if (!result.events.empty()) {
        _server.barRead(bar->second.device, result.events, now);
    }
}

void InputDevices::readKeyboard(int node) {
    const auto keyboard = _keyboards.find(node);
    if (keyboard == _keyboards.end()) {
        return;
    }
    EventBatch batch;
    const ReadResult result = keyboard->second.device.read(batch);
    if (result.isGone) {
        _server.keyboardRemoved(node);
        _keyboards.erase(keyboard);
        _roomAgain = true;
        return;
    }
    _server.keyboardRead(node, result.events);
    const bool dropped = std::any_of(result.events.begin(), result.events.end(), [](const auto &event) {
        return event.type == evdev::kEvSyn && event.code == evdev::kSynDropped;
    });
    if (dropped) {
        _server.keyboardRead(node, keyboard->second.device.modifiers());
    }
}

/// Those that were left alone for lack of room get what a device that has gone had.
void InputDevices::fillRoom() {
    if (std::exchange(_roomAgain, false) && std::exchange(_leftAlone, false)) {
        _watch->scan();
    }
}

void InputDevices::updateWanted() {
    fillRoom();
    for (auto &[node, bar] : _bars) {
        const bool wanted = _server.reads(bar.device);
        if (wanted != bar.isRead) {
            _poller.want(Source::Bar, node, wanted, false);
            bar.isRead = wanted;
        }
    }
}

} // namespace barquell::tapd
