#pragma once

#include "platform/linux/x11/XConnection.h"

#include <QByteArray>
#include <QHash>

#include <array>
#include <memory>
#include <vector>

namespace barquell {

/// A connection of our own to the X server, beside the toolkit's. What is asked of a window that has gone
/// reads as if it had said nothing. Main thread only.
class XDesktop {
public:
    /// Nothing where there is no X server, and where one is only a guest in a Wayland session: it knows a
    /// part of the windows then, and what is in front only while that is one of them.
    static std::unique_ptr<XDesktop> open();

    xcb_connection_t *connection() const { return _connection; }
    xcb_window_t root() const { return _connection.root(); }
    bool isBroken() const { return _connection.isBroken(); }

    xcb_atom_t atom(const char *name) const;

    /// The numbers (atoms, windows) in a property, up to 1024; none where it has none of this type.
    std::vector<std::uint32_t> numbers(xcb_window_t window, const char *name, xcb_atom_t type) const;

    /// A text in whatever encoding the window chose, up to 4 KiB.
    QByteArray text(xcb_window_t window, const char *name) const;

    /// Which events of a window are sent to this connection; false where there is no such window.
    bool select(xcb_window_t window, std::uint32_t eventMask) const;

    /// Asks the window manager about a window, as its hints rule.
    void tellRoot(xcb_window_t window, const char *message, const std::array<std::uint32_t, 5> &data) const;

    void flush() const { xcb_flush(connection()); }

private:
    XMessage<xcb_get_property_reply_t> property(xcb_window_t window, const char *name, xcb_atom_t type,
                                                std::uint8_t format) const;

    explicit XDesktop(XConnection connection) : _connection(std::move(connection)) {}

    XConnection _connection;
    mutable QHash<QByteArray, xcb_atom_t> _atoms;
};

} // namespace barquell
