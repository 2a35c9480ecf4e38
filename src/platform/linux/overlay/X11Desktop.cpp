#include "platform/linux/overlay/X11Desktop.h"

#include "platform/linux/x11/XConnection.h"

#include <QGuiApplication>
#include <QScreen>

#include <optional>
#include <string_view>

namespace barquell {

namespace {

xcb_connection_t *connection() {
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t *x) {
    return xcb_setup_roots_iterator(xcb_get_setup(x)).data->root;
}

xcb_atom_t atom(xcb_connection_t *x, std::string_view name) {
    const auto cookie = xcb_intern_atom(x, 1, static_cast<std::uint16_t>(name.size()), name.data());
    const XMessage<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t activeWindow(xcb_connection_t *x) {
    const auto cookie =
        xcb_get_property(x, 0, rootWindow(x), atom(x, "_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1);
    const XMessage<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, nullptr));
    if (!reply || xcb_get_property_value_length(reply.get()) < int{sizeof(xcb_window_t)}) {
        return XCB_WINDOW_NONE;
    }
    return *static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
}

/// In pixels of the whole desktop.
std::optional<QPoint> middleOf(xcb_connection_t *x, xcb_window_t window) {
    const auto sizeCookie = xcb_get_geometry(x, window);
    const auto placeCookie = xcb_translate_coordinates(x, window, rootWindow(x), 0, 0);
    const XMessage<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(x, sizeCookie, nullptr));
    const XMessage<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(x, placeCookie, nullptr));
    if (!size || !place) {
        return std::nullopt; // it has just gone
    }
    return QPoint(place->dst_x + size->width / 2, place->dst_y + size->height / 2);
}

/// Qt leaves the origin of a screen in pixels and divides its size by the scale factor.
QRect pixelsOf(const QScreen &screen) {
    const QRect points = screen.geometry();
    return {points.topLeft(), points.size() * screen.devicePixelRatio()};
}

} // namespace

bool X11Desktop::isComposited() {
    xcb_connection_t *x = connection();
    if (!x) {
        return false;
    }
    const auto cookie = xcb_get_selection_owner(x, atom(x, "_NET_WM_CM_S0"));
    const XMessage<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(x, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

QScreen *X11Desktop::screenOfActiveWindow() {
    xcb_connection_t *x = connection();
    const xcb_window_t window = x ? activeWindow(x) : xcb_window_t{XCB_WINDOW_NONE};
    const std::optional<QPoint> middle = window ? middleOf(x, window) : std::nullopt;
    if (!middle) {
        return nullptr;
    }
    for (QScreen *screen : QGuiApplication::screens()) {
        if (pixelsOf(*screen).contains(*middle)) {
            return screen;
        }
    }
    return nullptr;
}

void X11Desktop::flush() {
    if (xcb_connection_t *x = connection()) {
        xcb_flush(x);
    }
}

} // namespace barquell
