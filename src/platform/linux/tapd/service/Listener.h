#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/service/Options.h"

#include <optional>
#include <string>

namespace barquell::tapd {

/// The socket where clients connect: our own, or one that the service manager made and keeps. Whoever its
/// file's mode and group let write to it may connect. One thread; open() changes the process's umask for a
/// moment.
class Listener {
public:
    /// Whether the service manager has handed something over.
    static bool isHandedOver();
    /// What was handed over; nothing where that is no socket for clients, and `problem` then says so.
    static std::optional<Listener> take(std::string &problem);

    /// Nothing where it cannot be made, or another server listens there; `problem` then says why.
    static std::optional<Listener> open(const SocketOptions &options, std::string &problem);
    ~Listener();
    Listener(Listener &&) noexcept = default;
    Listener &operator=(Listener &&) = delete;
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;

    int descriptor() const { return _socket.get(); }
    const std::string &path() const { return _path; }

    /// The next client that waits; invalid where there is none.
    FileDescriptor accept() const;

private:
    Listener(FileDescriptor socket, std::string path) : _socket(std::move(socket)), _path(std::move(path)) {}

    void own();
    bool isOurs() const;

    FileDescriptor _socket;
    std::string _path;
    dev_t _device = 0; // which file bind() made; none where the socket was handed over
    ino_t _inode = 0;
};

} // namespace barquell::tapd
