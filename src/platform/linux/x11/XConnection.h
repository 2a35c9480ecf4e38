#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <optional>

namespace barquell {

struct FreeDeleter {
    void operator()(void *memory) const { std::free(memory); } // NOLINT(cppcoreguidelines-owning-memory)
};

/// A reply, an error or an event of the X server.
template <typename Message>
using XMessage = std::unique_ptr<Message, FreeDeleter>;

/// A connection of our own to the X server, beside Qt's.
class XConnection {
public:
    /// To the display that the environment names; nothing where there is none.
    static std::optional<XConnection> open();

    operator xcb_connection_t *() const { return _connection.get(); } // NOLINT(google-explicit-constructor)

    bool isBroken() const { return xcb_connection_has_error(_connection.get()) != 0; }
    xcb_window_t root() const { return _root; }
    const xcb_setup_t &setup() const { return *xcb_get_setup(_connection.get()); }

private:
    struct Closer {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    explicit XConnection(xcb_connection_t *connection) : _connection(connection) {}

    std::unique_ptr<xcb_connection_t, Closer> _connection;
    xcb_window_t _root = XCB_NONE;
};

} // namespace barquell
