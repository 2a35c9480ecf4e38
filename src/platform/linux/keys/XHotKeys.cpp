#include "platform/linux/keys/XHotKeys.h"

#include "foundation/Log.h"

#include <QCoreApplication>

#include <algorithm>

namespace barquell {

namespace {

constexpr HotKeyStatus kExists = -9878;       // eventHotKeyExistsErr
constexpr HotKeyStatus kInternal = -9868;     // eventInternalErr
constexpr HotKeyStatus kBadCombination = -50; // paramErr

constexpr std::uint8_t kResponseTypeMask = 0x7F; // without the bit of events sent by clients

std::uint8_t typeOf(const xcb_generic_event_t &event) {
    return event.response_type & kResponseTypeMask;
}

} // namespace

class XHotKeys::Key final : public HotKey {
public:
    Key(XHotKeys &keys, XKeyCode code, HotKeyModifiers modifiers, HotKeyId id)
        : _code(code), _modifiers(modifiers), _id(id), _keys(keys) {
        _keys._held.push_back(this);
    }

    ~Key() override { release(); }

    Key(const Key &) = delete;
    Key &operator=(const Key &) = delete;

    HotKeyStatus grab() {
        const auto wanted = _keys._modifiers.mask(_modifiers);
        if (!wanted) {
            return kBadCombination;
        }
        const HotKeyStatus status = _keys.grab(_code, *wanted);
        if (status == kHotKeySuccess) {
            _mask = wanted;
        }
        return status;
    }

    void ungrab() {
        if (_mask) {
            _keys.ungrab(_code, *_mask);
            _mask.reset();
        }
    }

    HotKeyStatus unregister() override {
        release();
        return _keys._connection.isBroken() ? kInternal : kHotKeySuccess;
    }

    HotKeyId id() const { return _id; }
    bool holds(XKeyCode code, HotKeyModifiers modifiers) const {
        return code == _code && modifiers == _modifiers;
    }
    bool isPressedBy(const xcb_key_press_event_t &event) const {
        return _mask && event.detail == _code && _keys._modifiers.matches(event.state, *_mask);
    }

private:
    void release() {
        ungrab();
        std::erase(_keys._held, this);
    }

    const XKeyCode _code;
    const HotKeyModifiers _modifiers;
    const HotKeyId _id;
    std::optional<std::uint16_t> _mask; // of the grab, while there is one
    XHotKeys &_keys;
};

std::unique_ptr<XHotKeys> XHotKeys::open() {
    auto connection = XConnection::open();
    return connection ? std::unique_ptr<XHotKeys>(new XHotKeys(std::move(*connection))) : nullptr;
}

XHotKeys::XHotKeys(XConnection connection)
    : _connection(std::move(connection)), _modifiers(XModifiers::read(_connection)),
      _notifier(xcb_get_file_descriptor(_connection), QSocketNotifier::Read) {
    QObject::connect(&_notifier, &QSocketNotifier::activated, &_notifier, [this] { readEvents(); });
    QCoreApplication::instance()->installNativeEventFilter(this);
}

HotKeyStatus XHotKeys::installHandler(Handler handler) {
    _handler = std::move(handler);
    return kHotKeySuccess;
}

HotKeys::Registration XHotKeys::registerHotKey(std::uint32_t keyCode, HotKeyModifiers modifiers, HotKeyId id,
                                               bool /*exclusive: every grab is*/) {
    const auto code = xKeyCodeForVirtualKey(keyCode);
    if (!code) {
        return {kBadCombination, nullptr};
    }
    // The server sees no conflict among the grabs of one client.
    const bool held = std::any_of(_held.begin(), _held.end(),
                                  [&](const Key *each) { return each->holds(*code, modifiers); });
    if (held) {
        return {kExists, nullptr};
    }
    auto key = std::make_unique<Key>(*this, *code, modifiers, id);
    const HotKeyStatus status = key->grab();
    readEventsLater();
    if (status != kHotKeySuccess) {
        return {status, nullptr};
    }
    return {kHotKeySuccess, std::move(key)};
}

HotKeyStatus XHotKeys::grab(XKeyCode key, std::uint16_t mask) {
    std::vector<xcb_void_cookie_t> requests;
    for (const std::uint16_t each : _modifiers.withLocks(mask)) {
        requests.push_back(xcb_grab_key_checked(_connection, /*owner_events=*/0, _connection.root(), each,
                                                key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    HotKeyStatus status = kHotKeySuccess;
    for (const xcb_void_cookie_t request : requests) {
        if (const XMessage<xcb_generic_error_t> error{xcb_request_check(_connection, request)}) {
            status = error->error_code == XCB_ACCESS ? kExists : kInternal;
        }
    }
    if (_connection.isBroken()) {
        return kInternal;
    }
    if (status != kHotKeySuccess) {
        ungrab(key, mask); // all or none
    }
    return status;
}

void XHotKeys::ungrab(XKeyCode key, std::uint16_t mask) {
    for (const std::uint16_t each : _modifiers.withLocks(mask)) {
        xcb_ungrab_key(_connection, key, _connection.root(), each);
    }
    xcb_flush(_connection);
}

/// Whoever waits for an answer of the server takes events in as well, and the descriptor tells of those no
/// more.
void XHotKeys::readEventsLater() {
    QMetaObject::invokeMethod(
        &_notifier, [this] { readEvents(); }, Qt::QueuedConnection);
}

void XHotKeys::readEvents() {
    bool mappingChanged = false;
    while (const XMessage<xcb_generic_event_t> event{xcb_poll_for_event(_connection)}) {
        switch (typeOf(*event)) {
        case XCB_KEY_PRESS:
        case XCB_KEY_RELEASE:
            handle(reinterpret_cast<const xcb_key_press_event_t &>(*event));
            break;
        case XCB_MAPPING_NOTIFY:
            mappingChanged = true;
            break;
        default:
            break;
        }
    }
    if (_connection.isBroken()) {
        _notifier.setEnabled(false); // nothing to say: the windows' own connection ends the program
    } else if (mappingChanged) {
        followMapping();
    }
}

/// The keys of a menu of ours come to Qt's own connection, which holds the whole keyboard then.
bool XHotKeys::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/) {
    if (eventType != "xcb_generic_event_t") {
        return false;
    }
    const auto &event = *static_cast<const xcb_generic_event_t *>(message);
    const std::uint8_t type = typeOf(event);
    return (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) &&
           handle(reinterpret_cast<const xcb_key_press_event_t &>(event));
}

/// True for a press that is a hot key's, so nobody else's.
bool XHotKeys::handle(const xcb_key_press_event_t &event) {
    if (typeOf(reinterpret_cast<const xcb_generic_event_t &>(event)) == XCB_KEY_RELEASE) {
        if (_pressed.key == event.detail) {
            _pressed.released = event.time;
        }
        return false;
    }
    const auto key =
        std::find_if(_held.begin(), _held.end(), [&](const Key *each) { return each->isPressedBy(event); });
    if (key == _held.end()) {
        return false;
    }
    const bool repeat = isRepeat(event);
    _pressed = {event.detail, 0};
    if (!repeat && _handler) {
        _handler((*key)->id());
    }
    return true;
}

/// Repetitions come as a release and a press at the same time, to Qt's connection as well.
bool XHotKeys::isRepeat(const xcb_key_press_event_t &event) const {
    return event.detail == _pressed.key && event.time == _pressed.released;
}

void XHotKeys::followMapping() {
    const XModifiers now = XModifiers::read(_connection);
    if (now == _modifiers) {
        return; // keys are grabbed by their place, which no layout changes
    }
    for (Key *key : _held) {
        key->ungrab();
    }
    _modifiers = now;
    const std::vector<Key *> keys = _held;
    for (Key *key : keys) {
        const HotKeyStatus status = key->grab();
        if (status != kHotKeySuccess) {
            log(QStringLiteral("A global shortcut was lost when the keyboard changed: %1").arg(status));
            std::erase(_held, key); // it may be taken anew
        }
    }
    readEventsLater();
}

} // namespace barquell
