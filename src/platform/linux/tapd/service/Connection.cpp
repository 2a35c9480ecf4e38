#include "platform/linux/tapd/service/Connection.h"

#include <cerrno>
#include <sys/socket.h>

namespace barquell::tapd {

Connection::Connection(FileDescriptor socket) : _socket(std::move(socket)) {
    ucred peer{};
    socklen_t size = sizeof peer;
    ::getsockopt(_socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size);
    _user = peer.uid;
    _process = peer.pid;
    _name = "client " + std::to_string(peer.pid) + " of user " + std::to_string(peer.uid);
}

Connection::Received Connection::receive(Packet &packet, std::size_t &size) const {
    const ssize_t bytes = ::recv(_socket.get(), packet.data(), packet.size(), MSG_DONTWAIT);
    if (bytes > 0) {
        size = static_cast<std::size_t>(bytes);
        return Received::Packet;
    }
    return bytes < 0 && (errno == EAGAIN || errno == EINTR) ? Received::Nothing : Received::End;
}

bool Connection::send(const protocol::ServerMessage &message) {
    const auto packet = protocol::packetOf(message);
    const ssize_t bytes = ::send(_socket.get(), packet.data(), packet.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    // That the client has gone is heard when it is read from; there is nothing left to be sent to it.
    return bytes >= 0 || (errno != EAGAIN && errno != ENOBUFS && errno != ENOMEM);
}

/// A socket that is closed over words that nobody has read takes back what it has told.
void Connection::close() {
    _closed = true;
    ::shutdown(_socket.get(), SHUT_RD);
    Packet packet;
    while (::recv(_socket.get(), packet.data(), packet.size(), MSG_DONTWAIT) > 0) {
    }
}

} // namespace barquell::tapd
