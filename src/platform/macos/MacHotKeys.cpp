#include "platform/macos/MacHotKeys.h"

#include <Carbon/Carbon.h>

#include <utility>

namespace barquell {

namespace {

static_assert(kHotKeyCommand == cmdKey && kHotKeyShift == shiftKey && kHotKeyAlphaLock == alphaLock &&
              kHotKeyOption == optionKey && kHotKeyControl == controlKey);

class MacHotKey final : public HotKey {
public:
    explicit MacHotKey(EventHotKeyRef ref) : _ref(ref) {}
    ~MacHotKey() override { unregister(); }
    MacHotKey(const MacHotKey &) = delete;
    MacHotKey &operator=(const MacHotKey &) = delete;

    HotKeyStatus unregister() override {
        const EventHotKeyRef ref = std::exchange(_ref, nullptr);
        return ref ? UnregisterEventHotKey(ref) : noErr;
    }

private:
    EventHotKeyRef _ref;
};

/// The press's identifier; false where the event holds none.
bool readHotKeyId(EventRef event, HotKeyId &id) {
    EventHotKeyID read{};
    if (GetEventParameter(event, kEventParamDirectObject, typeEventHotKeyID, nullptr, sizeof read, nullptr,
                          &read) != noErr) {
        return false;
    }
    id = {read.signature, read.id};
    return true;
}

OSStatus pressed(EventHandlerCallRef next, EventRef event, void *handler) {
    HotKeyId id;
    const bool ours = GetEventClass(event) == kEventClassKeyboard && readHotKeyId(event, id) &&
                      (*static_cast<const HotKeys::Handler *>(handler))(id);
    return ours ? static_cast<OSStatus>(noErr) : CallNextEventHandler(next, event);
}

} // namespace

HotKeyStatus MacHotKeys::installHandler(Handler handler) {
    _handler = std::move(handler);
    const EventTypeSpec presses{kEventClassKeyboard, kEventHotKeyPressed};
    return InstallEventHandler(GetApplicationEventTarget(), &pressed, 1, &presses, &_handler, nullptr);
}

HotKeys::Registration MacHotKeys::registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers,
                                                 HotKeyId id, bool exclusive) {
    EventHotKeyRef ref = nullptr;
    const OSStatus status =
        RegisterEventHotKey(keyCode, modifiers, {id.signature, id.number}, GetApplicationEventTarget(),
                            exclusive ? kEventHotKeyExclusive : kEventHotKeyNoOptions, &ref);
    if (status != noErr) {
        return {status, nullptr};
    }
    return {kHotKeySuccess, std::make_unique<MacHotKey>(ref)};
}

} // namespace barquell
