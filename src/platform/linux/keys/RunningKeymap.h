#pragma once

#include "platform/linux/keys/Keymap.h"
#include "platform/linux/x11/XConnection.h"

#include <bitset>

namespace barquell {

/// What the X server says of its keyboard. Main thread only.
class RunningKeymap {
public:
    /// Without a server every answer is "nothing".
    RunningKeymap();

    /// As it is laid out now.
    std::optional<Keymap> read() const;

    using KeysDown = std::bitset<256>; ///< by X key code
    KeysDown keysDown() const;

private:
    std::optional<XConnection> _connection;
    XkbContext _context;
};

} // namespace barquell
