#pragma once

#include "platform/linux/grant/GrantFolder.h"
#include "platform/linux/protocol/Protocol.h"

#include <optional>
#include <string>
#include <sys/types.h>

namespace barquell::tapd {

/// Who may connect is who may write to the socket; who may filter is another question.
struct SocketOptions {
    std::string path = protocol::kDefaultSocket;
    mode_t mode = 0660;
    std::string group; ///< empty: the server's own
};

enum class Task { Serve, Grant, Withdraw, Help, Version };

struct Options {
    Task task = Task::Serve;
    SocketOptions socket;
    std::string grants = grant::kFolder;
    std::string user; ///< to grant to or withdraw from: a name, or a number
};

/// Nothing where they are wrong; a line on standard error has then said why. Before any other thread: getopt.
std::optional<Options> optionsFrom(int argc, char **argv);

extern const char *const kUsage;

} // namespace barquell::tapd
