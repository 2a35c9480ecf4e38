#include "platform/linux/client/ServerProbe.h"

#include "platform/linux/client/ServerSocket.h"

#include <poll.h>
#include <unistd.h>

namespace barquell {

std::variant<protocol::ServerMessage, ProbeFailure> probeServer(const QString &socketPath,
                                                                std::chrono::milliseconds limit) {
    const QByteArray path = socketPath.toLocal8Bit();
    if (::access(path.constData(), F_OK) != 0) {
        return ProbeFailure::Absent;
    }
    if (::access(path.constData(), W_OK) != 0) {
        return ProbeFailure::Forbidden;
    }
    const FileDescriptor socket = connectToServer(path);
    const protocol::ClientMessage hello{.type = protocol::ClientMessageType::Hello,
                                        .version = protocol::kVersion};
    if (!socket.isValid() || !sendToServer(socket, hello)) {
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
    if (answer->type != protocol::ServerMessageType::Welcome) {
        return ProbeFailure::Refused;
    }
    return *answer;
}

} // namespace barquell
