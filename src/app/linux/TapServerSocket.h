#pragma once

#include <QString>

#include <chrono>

namespace barquell {

/// Where the tap server listens; BARQUELL_TAP_SOCKET in the environment names another place.
QString tapServerSocket();

/// So long a command waits for an answer: a server that is only now being started may take a moment.
inline constexpr std::chrono::milliseconds kServerLimit{5000};

} // namespace barquell
