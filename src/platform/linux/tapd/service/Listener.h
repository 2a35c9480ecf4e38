#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/service/Options.h"

#include <optional>
#include <string>

namespace barquell::tapd {

/// The socket where clients connect, and the only place that knows who may: whoever the file's mode and group
/// let write to it. One thread; open() changes the process's umask for a moment.
class Listener {
public:
    /// Nothing where it cannot be made, or another server listens there; `problem` then says why.
    static std::optional<Listener> open(const SocketOptions &options, std::string &problem);
    ~Listener();
    Listener(Listener &&) noexcept = default;
    Listener &operator=(Listener &&) = delete;
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;

    int descriptor() const { return _socket.get(); }

    /// The next client that waits; invalid where there is none.
    FileDescriptor accept() const;

private:
    Listener(FileDescriptor socket, std::string path);

    bool isOurs() const;

    FileDescriptor _socket;
    std::string _path;
    dev_t _device = 0; // which file bind() made
    ino_t _inode = 0;
};

} // namespace barquell::tapd
