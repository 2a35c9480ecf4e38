#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/tapd/core/Ports.h"

namespace barquell::tapd {

/// A client's socket. One thread.
class Connection final : public ClientLink {
public:
    explicit Connection(FileDescriptor socket);

    int descriptor() const { return _socket.get(); }
    bool isClosed() const { return _closed; }

    /// One byte more than a message, so that a packet too long shows.
    using Packet = std::array<std::byte, sizeof(protocol::ClientMessage) + 1>;

    enum class Received { Packet, Nothing, End };
    /// The next packet and its size.
    Received receive(Packet &packet, std::size_t &size) const;

    bool send(const protocol::ServerMessage &message) override;
    void close() override;
    const std::string &name() const override { return _name; }
    std::uint32_t user() const override { return _user; }
    std::int32_t process() const override { return _process; }

private:
    FileDescriptor _socket;
    std::string _name;
    std::uint32_t _user = 0;
    std::int32_t _process = 0;
    bool _closed = false;
};

} // namespace barquell::tapd
