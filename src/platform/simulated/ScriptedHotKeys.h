#pragma once

#include "platform/HotKeys.h"

#include <cstdint>
#include <string>
#include <vector>

namespace barquell {

/// Hot keys that a script presses. Like the system's they are exclusive, and told later from the run loop.
class ScriptedHotKeys final : public HotKeys {
public:
    static constexpr HotKeyStatus kExists = -9878; // eventHotKeyExistsErr

    HotKeyStatus installHandler(Handler handler) override;
    Registration registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id,
                                bool exclusive) override;

    /// False where nobody holds the combination.
    bool press(std::uint32_t keyCode, HotKeyModifiers modifiers);

    /// Tells the handler at once, as of a press; what it answered.
    bool tell(HotKeyId id) const { return _handler(id); }

    bool isRegistered(std::uint32_t keyCode, HotKeyModifiers modifiers) const;
    std::size_t registeredCount() const { return _held.size(); }

    HotKeyStatus installStatus = kHotKeySuccess;  ///< what installHandler() answers
    HotKeyStatus registerStatus = kHotKeySuccess; ///< what registerHotKey() answers
    HotKeyStatus unregisterStatus =
        kHotKeySuccess; ///< what unregister() answers; the key is given back anyway

    /// The calls in their order: "install", "register KEY MODIFIERS NUMBER", "unregister NUMBER".
    std::vector<std::string> journal;

    std::vector<HotKeyId> passedOn; ///< presses that the handler did not take

private:
    class Key;

    const Key *heldKey(std::uint32_t keyCode, HotKeyModifiers modifiers) const;

    Handler _handler;
    std::vector<Key *> _held; // each takes itself out
};

} // namespace barquell
