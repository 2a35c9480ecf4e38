#include "platform/linux/keys/RunningKeymap.h"

#include <xkbcommon/xkbcommon-x11.h>

namespace barquell {

RunningKeymap::RunningKeymap() : _connection(XConnection::open()), _context(makeXkbContext()) {
    if (_connection && xkb_x11_setup_xkb_extension(
                           *_connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                           XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr) == 0) {
        _connection.reset();
    }
}

std::optional<Keymap> RunningKeymap::read() const {
    if (!_connection || !_context) {
        return std::nullopt;
    }
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(*_connection);
    return device < 0 ? std::nullopt
                      : Keymap::owning(xkb_x11_keymap_new_from_device(_context.get(), *_connection, device,
                                                                      XKB_KEYMAP_COMPILE_NO_FLAGS));
}

RunningKeymap::KeysDown RunningKeymap::keysDown() const {
    KeysDown down;
    if (!_connection) {
        return down;
    }
    const XMessage<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(*_connection, xcb_query_keymap(*_connection), nullptr));
    for (std::size_t key = 0; reply && key < down.size(); ++key) {
        down[key] = (reply->keys[key / 8] >> (key % 8) & 1U) != 0;
    }
    return down;
}

} // namespace barquell
