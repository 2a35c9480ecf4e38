#include "platform/simulated/ScriptedHotKeys.h"

#include "foundation/RunLoop.h"

#include <algorithm>

namespace barquell {

class ScriptedHotKeys::Key final : public HotKey {
public:
    Key(ScriptedHotKeys &keys, std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id)
        : _keyCode(keyCode), _modifiers(modifiers), _id(id), _keys(keys) {
        _keys._held.push_back(this);
    }

    ~Key() override { std::erase(_keys._held, this); }

    Key(const Key &) = delete;
    Key &operator=(const Key &) = delete;

    HotKeyStatus unregister() override {
        _keys.journal.push_back("unregister " + std::to_string(_id.number));
        std::erase(_keys._held, this);
        return _keys.unregisterStatus;
    }

    HotKeyId id() const { return _id; }
    bool holds(std::uint32_t keyCode, HotKeyModifiers modifiers) const {
        return keyCode == _keyCode && modifiers == _modifiers;
    }

private:
    const std::uint32_t _keyCode;
    const HotKeyModifiers _modifiers;
    const HotKeyId _id;
    ScriptedHotKeys &_keys;
};

HotKeyStatus ScriptedHotKeys::installHandler(Handler handler) {
    journal.emplace_back("install");
    if (installStatus == kHotKeySuccess) {
        _handler = std::move(handler);
    }
    return installStatus;
}

HotKeys::Registration ScriptedHotKeys::registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers,
                                                      HotKeyId id, bool exclusive) {
    journal.push_back("register " + std::to_string(keyCode) + ' ' + std::to_string(modifiers) + ' ' +
                      std::to_string(id.number));
    if (registerStatus != kHotKeySuccess) {
        return {registerStatus, nullptr};
    }
    if (exclusive && heldKey(keyCode, modifiers)) {
        return {kExists, nullptr};
    }
    return {kHotKeySuccess, std::make_unique<Key>(*this, keyCode, modifiers, id)};
}

bool ScriptedHotKeys::press(std::uint32_t keyCode, HotKeyModifiers modifiers) {
    const Key *key = heldKey(keyCode, modifiers);
    if (!key) {
        return false;
    }
    RunLoop::main().performAsync([this, id = key->id()] {
        if (!_handler(id)) {
            passedOn.push_back(id);
        }
    });
    return true;
}

bool ScriptedHotKeys::isRegistered(std::uint32_t keyCode, HotKeyModifiers modifiers) const {
    return heldKey(keyCode, modifiers) != nullptr;
}

const ScriptedHotKeys::Key *ScriptedHotKeys::heldKey(std::uint32_t keyCode, HotKeyModifiers modifiers) const {
    const auto held = std::find_if(_held.begin(), _held.end(),
                                   [=](const Key *key) { return key->holds(keyCode, modifiers); });
    return held == _held.end() ? nullptr : *held;
}

} // namespace barquell
