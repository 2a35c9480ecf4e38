#pragma once

#include "platform/HotKeys.h"

namespace barquell {

/// Carbon's hot keys, the one part of it that stands without a successor.
class MacHotKeys final : public HotKeys {
public:
    HotKeyStatus installHandler(Handler handler) override;
    Registration registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id,
                                bool exclusive) override;

private:
    Handler _handler;
};

} // namespace barquell
