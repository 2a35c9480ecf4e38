#include "platform/linux/client/ServerSocket.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace barquell {

FileDescriptor connectToServer(const QByteArray &path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) {
        return FileDescriptor();
    }
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    FileDescriptor socket(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    const auto *generic = reinterpret_cast<const sockaddr *>(&address);
    if (!socket.isValid() || ::connect(socket.get(), generic, sizeof address) != 0) {
        return FileDescriptor();
    }
    return socket;
}

bool sendToServer(const FileDescriptor &socket, const protocol::ClientMessage &message) {
    const auto packet = protocol::packetOf(message);
    const ssize_t sent = ::send(socket.get(), packet.data(), packet.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    return sent == static_cast<ssize_t>(packet.size());
}

std::optional<protocol::ServerMessage> receiveFromServer(const FileDescriptor &socket, bool &ended) {
    std::array<std::byte, sizeof(protocol::ServerMessage) + 1> packet; // one more shows one that is too long
    const ssize_t size = ::recv(socket.get(), packet.data(), packet.size(), MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(size < 0 ? 0 : size);
    const auto message = protocol::decodeServerMessage(std::span(packet).first(length));
    ended = !message;
    return message;
}

} // namespace barquell
