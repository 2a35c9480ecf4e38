#include "platform/linux/x11/XConnection.h"

namespace barquell {

std::optional<XConnection> XConnection::open() {
    int screen = 0;
    XConnection connection(xcb_connect(nullptr, &screen)); // an object even where it fails
    if (connection.isBroken()) {
        return std::nullopt;
    }
    auto screens = xcb_setup_roots_iterator(&connection.setup());
    for (; screens.rem > 1 && screen > 0; --screen) {
        xcb_screen_next(&screens);
    }
    connection._root = screens.data->root;
    return connection;
}

} // namespace barquell
