#include "platform/linux/x11/XDesktop.h"

#include <cstring>

namespace barquell {

std::unique_ptr<XDesktop> XDesktop::open() {
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qEnvironmentVariableIsEmpty("DISPLAY")) {
        return nullptr;
    }
    auto opened = XConnection::open();
    if (!opened) {
        return nullptr;
    }
    return std::unique_ptr<XDesktop>(
        new XDesktop(*std::move(opened))); // NOLINT: nobody else may construct it
}

xcb_atom_t XDesktop::atom(const char *name) const {
    if (const auto known = _atoms.constFind(name); known != _atoms.constEnd()) {
        return *known;
    }
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    const XMessage<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection(), xcb_intern_atom(connection(), 0, length, name), nullptr));
    return reply ? _atoms.insert(name, reply->atom).value() : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

XMessage<xcb_get_property_reply_t> XDesktop::property(xcb_window_t window, const char *name, xcb_atom_t type,
                                                      std::uint8_t format) const {
    constexpr std::uint32_t kMostWords = 1024;
    XMessage<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection(), xcb_get_property(connection(), 0, window, atom(name), type, 0, kMostWords), nullptr));
    if (reply && reply->format != format) {
        reply.reset();
    }
    return reply;
}

std::vector<std::uint32_t> XDesktop::numbers(xcb_window_t window, const char *name, xcb_atom_t type) const {
    const auto reply = property(window, name, type, 32);
    if (!reply) {
        return {};
    }
    const auto *first = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

QByteArray XDesktop::text(xcb_window_t window, const char *name) const {
    const auto reply = property(window, name, XCB_GET_PROPERTY_TYPE_ANY, 8);
    return reply
               ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())), reply->value_len)
               : QByteArray();
}

bool XDesktop::select(xcb_window_t window, std::uint32_t eventMask) const {
    const XMessage<xcb_generic_error_t> error(
        xcb_request_check(connection(), xcb_change_window_attributes_checked(connection(), window,
                                                                             XCB_CW_EVENT_MASK, &eventMask)));
    return !error;
}

void XDesktop::tellRoot(xcb_window_t window, const char *message,
                        const std::array<std::uint32_t, 5> &data) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::memcpy(event.data.data32, data.data(), sizeof event.data.data32);
    xcb_send_event(connection(), 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&event));
}

} // namespace barquell
