#pragma once

#include "platform/HotKeys.h"

namespace barquell {

/// Where no system-wide keys can be had. Says so in one line when the first is asked for; then every key
/// counts as held and none is ever pressed.
class NullHotKeys final : public HotKeys {
public:
    HotKeyStatus installHandler(Handler /*handler*/) override { return kHotKeySuccess; }
    Registration registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id,
                                bool exclusive) override;

private:
    bool _said = false;
};

} // namespace barquell
