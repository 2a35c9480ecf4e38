#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/keys/VirtualKeys.h"
#include "platform/linux/keys/XModifiers.h"

#include <QAbstractNativeEventFilter>
#include <QSocketNotifier>

#include <memory>
#include <vector>

namespace barquell {

/// Hot keys by grabs on the X server's root window, with each combination of Caps Lock and Num Lock. A grab
/// of the whole keyboard by another program (its menu, a screen locker) goes before them; one by a menu of
/// ours does not. Needs an application; main thread only. Its hot keys must not outlive it.
class XHotKeys final : public HotKeys, private QAbstractNativeEventFilter {
public:
    /// nullptr where there is no X server.
    static std::unique_ptr<XHotKeys> open();

    HotKeyStatus installHandler(Handler handler) override;

    /// Statuses are those of CarbonEvents.h and MacErrors.h. What is refused by the handler is not passed on:
    /// a grab keeps what it got.
    Registration registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id,
                                bool exclusive) override;

private:
    class Key;

    explicit XHotKeys(XConnection connection);

    /// The hot key that was pressed last.
    struct Pressed {
        XKeyCode key = 0;
        xcb_timestamp_t released = 0; ///< when it was let go of; 0 before that
    };

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
    void readEvents();
    void readEventsLater();
    bool handle(const xcb_key_press_event_t &event);
    bool isRepeat(const xcb_key_press_event_t &event) const;
    void followMapping();
    HotKeyStatus grab(XKeyCode key, std::uint16_t mask);
    void ungrab(XKeyCode key, std::uint16_t mask);

    XConnection _connection;
    XModifiers _modifiers;
    QSocketNotifier _notifier;
    Handler _handler;
    std::vector<Key *> _held; // each takes itself out
    Pressed _pressed;
};

} // namespace barquell
