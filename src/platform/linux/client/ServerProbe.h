#pragma once

#include "platform/linux/protocol/Protocol.h"

#include <QString>

#include <chrono>
#include <optional>
#include <variant>

namespace barquell {

/// So long an answer is waited for: a server that is only now being started may take a moment.
inline constexpr std::chrono::milliseconds kServerLimit{5000};

/// Why the tap server could not be asked.
enum class ProbeFailure {
    Absent,     ///< there is no socket
    Forbidden,  ///< the socket is there, but not for us
    Silent,     ///< nobody listens, or nobody answers in time
    NotGranted, ///< this user may not filter
    Refused,    ///< another version, or no room
};

/// What stands in the way to the server, Absent or Forbidden; nothing is said to it. Any thread.
std::optional<ProbeFailure> obstacleTo(const QString &socketPath);

/// Says one of the first words to the tap server and waits for its answer until the limit; fails as far as
/// Silent. Any thread.
std::variant<protocol::ServerMessage, ProbeFailure>
askServer(const QString &socketPath, protocol::ClientMessageType word, std::chrono::milliseconds limit);

/// Asks the tap server how it is; waits for its answer until the limit. Any thread.
std::variant<protocol::ServerMessage, ProbeFailure> probeServer(const QString &socketPath,
                                                                std::chrono::milliseconds limit);

} // namespace barquell
