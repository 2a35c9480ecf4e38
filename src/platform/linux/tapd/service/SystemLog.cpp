#include "platform/linux/tapd/service/SystemLog.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

namespace barquell::tapd {

namespace {

/// Whether what is written there goes to the system log anyway: the service manager names the stream that it
/// has made. Others may have inherited the name, so it is compared.
bool isSystemLog(int error) {
    const char *name = std::getenv("JOURNAL_STREAM"); // before any other thread could exist
    struct stat stream {};
    return name && ::fstat(error, &stream) == 0 &&
           name == std::to_string(stream.st_dev) + ':' + std::to_string(stream.st_ino);
}

} // namespace

SystemLog::SystemLog(int error, std::string systemSocket)
    : _error(isSystemLog(error) ? -1 : error), _system(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)),
      _systemSocket(std::move(systemSocket)) {}

void SystemLog::line(std::string_view text) {
    if (!_limit.admits(std::chrono::steady_clock::now())) {
        return;
    }
    if (const int leftOut = _limit.takeLeftOut()) {
        write(ready(std::to_string(leftOut) + " lines were left out"));
    }
    // Devices choose their names; a line stays a line.
    std::string printable(text);
    std::replace_if(
        printable.begin(), printable.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }, '?');
    write(ready(printable));
}

SystemLog::Ready SystemLog::ready(std::string_view text) {
    std::array<char, 64> head{}; // RFC 3164: priority and tag
    std::snprintf(head.data(), head.size(), "<%d>barquell-tapd[%d]: ", LOG_DAEMON | LOG_NOTICE,
                  static_cast<int>(::getpid()));
    return {std::string("barquell-tapd: ").append(text) + '\n', std::string(head.data()).append(text)};
}

void SystemLog::write(const Ready &line) const {
    _error.write(line.error);
    writeToSystem(line.system);
}

/// Not by syslog(3), which waits for a log that does not read.
void SystemLog::writeToSystem(const std::string &packet) const {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    _systemSocket.copy(address.sun_path, sizeof address.sun_path - 1);
    ::sendto(_system.get(), packet.data(), packet.size(), MSG_DONTWAIT | MSG_NOSIGNAL,
             reinterpret_cast<const sockaddr *>(&address), sizeof address);
}

} // namespace barquell::tapd
