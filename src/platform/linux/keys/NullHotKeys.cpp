#include "platform/linux/keys/NullHotKeys.h"

#include "foundation/Log.h"

namespace barquell {

HotKeys::Registration NullHotKeys::registerHotKey(std::uint32_t /*keyCode*/, HotKeyModifiers /*modifiers*/,
                                                  HotKeyId /*id*/, bool /*exclusive*/) {
    class Key final : public HotKey {
    public:
        HotKeyStatus unregister() override { return kHotKeySuccess; }
    };
    if (!_said) {
        _said = true;
        log(QStringLiteral("Global shortcuts need an X11 session; here they do nothing"));
    }
    return {kHotKeySuccess, std::make_unique<Key>()};
}

} // namespace barquell
