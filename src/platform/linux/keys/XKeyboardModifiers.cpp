#include "platform/linux/keys/XKeyboardModifiers.h"

#include "evdev/KeyMeaning.h"

// A C header that names a field with a keyword of C++.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define explicit explicitly
#include <xcb/xkb.h>
#undef explicit
#ifdef __clang__
#pragma clang diagnostic pop
#endif

namespace barquell {

namespace {

constexpr std::size_t kXKeyCodeOffset = 8; // X key codes are the kernel's plus 8 (xkeyboard-config's "evdev")

bool useXkb(const XConnection &connection) {
    const XMessage<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(
        connection, xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION),
        nullptr));
    return reply && reply->supported != 0;
}

/// Only that the modifiers changed; which, the keys tell.
void selectModifierChanges(const XConnection &connection) {
    constexpr std::uint16_t kDetails = XCB_XKB_STATE_PART_MODIFIER_BASE;
    xcb_xkb_select_events_details_t details{};
    details.affectState = kDetails;
    details.stateDetails = kDetails;
    xcb_xkb_select_events_aux(connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_EVENT_TYPE_STATE_NOTIFY, 0, 0, 0,
                              0, &details);
    xcb_flush(connection);
}

} // namespace

XKeyboardModifiers::XKeyboardModifiers() : _events(XConnection::open()) {
    if (_events && !useXkb(*_events)) {
        _events.reset();
    }
}

ModifierFlags XKeyboardModifiers::currentFlags() const {
    const RunningKeymap::KeysDown down = _keys.keysDown();
    ModifierFlags flags = 0;
    for (std::size_t key = kXKeyCodeOffset; key < down.size(); ++key) {
        if (down[key]) {
            flags |= evdev::modifierFlagsOf(static_cast<std::uint16_t>(key - kXKeyCodeOffset));
        }
    }
    return flags;
}

void XKeyboardModifiers::watch(std::function<void()> mayHaveChanged) {
    _mayHaveChanged = std::move(mayHaveChanged);
    if (!_events || _notifier) {
        return;
    }
    selectModifierChanges(*_events);
    _notifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(*_events), QSocketNotifier::Read);
    QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(), [this] { read(); });
}

void XKeyboardModifiers::read() {
    bool changed = false;
    while (XMessage<xcb_generic_event_t>(xcb_poll_for_event(*_events))) {
        changed = true;
    }
    if (_events->isBroken()) {
        _notifier->setEnabled(false);
    }
    if (changed && _mayHaveChanged) {
        _mayHaveChanged();
    }
}

} // namespace barquell
