#include "platform/linux/client/ServerProbe.h"

#include "platform/linux/client/ServerSocket.h"

#include <poll.h>
#include <unistd.h>

namespace barquell {

using protocol::ServerMessage;
using protocol::ServerMessageType;

std::optional<ProbeFailure> obstacleTo(const QString &socketPath) {
    const QByteArray path = socketPath.toLocal8Bit();
    if (::access(path.constData(), F_OK) != 0) {
        return ProbeFailure::Absent;
    }
    return ::access(path.constData(), W_OK) != 0 ? std::optional(ProbeFailure::Forbidden) : std::nullopt;
}

std::variant<ServerMessage, ProbeFailure>
askServer(const QString &socketPath, protocol::ClientMessageType word, std::chrono::milliseconds limit) {
    if (const auto obstacle = obstacleTo(socketPath)) {
        return *obstacle;
    }
    const FileDescriptor socket = connectToServer(socketPath.toLocal8Bit());
    if (!socket.isValid() || !sendToServer(socket, {.type = word, .version = protocol::kVersion})) {
        return ProbeFailure::Silent;
    }
    pollfd waiting{socket.get(), POLLIN, 0};
    if (::poll(&waiting, 1, static_cast<int>(limit.count())) != 1) {
        return ProbeFailure::Silent;
    }
    bool ended = false;
    const auto answer = receiveFromServer(socket, ended);
    if (!answer) {
        return ProbeFailure::Silent;
    }
    return *answer;
}

std::variant<ServerMessage, ProbeFailure> probeServer(const QString &socketPath,
                                                      std::chrono::milliseconds limit) {
    auto answer = askServer(socketPath, protocol::ClientMessageType::Hello, limit);
    const auto *message = std::get_if<ServerMessage>(&answer);
    if (!message || message->type == ServerMessageType::Welcome) {
        return answer;
    }
    return message->reason == protocol::Refusal::NotGranted ? ProbeFailure::NotGranted
                                                            : ProbeFailure::Refused;
}

} // namespace barquell
