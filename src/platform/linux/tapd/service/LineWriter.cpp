#include "platform/linux/tapd/service/LineWriter.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>

namespace barquell::tapd {

namespace {

FileDescriptor openedAnew(int descriptor) {
    const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
    return FileDescriptor(::open(path.c_str(), O_WRONLY | O_APPEND | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

/// For what cannot be opened anew: sockets, terminals of another user.
ssize_t writeWithoutWaiting(int descriptor, std::string_view text) {
    const ssize_t sent = ::send(descriptor, text.data(), text.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    if (sent >= 0 || errno != ENOTSOCK) {
        return sent;
    }
    pollfd room{descriptor, POLLOUT, 0};
    const bool hasRoom = ::poll(&room, 1, 0) == 1 && (room.revents & POLLOUT) != 0;
    return hasRoom ? ::write(descriptor, text.data(), text.size()) : -1;
}

} // namespace

LineWriter::LineWriter(int descriptor)
    : _own(openedAnew(descriptor)), _given(::fcntl(descriptor, F_GETFD) < 0 ? -1 : descriptor) {}

bool LineWriter::write(std::string_view line) const {
    if (_given < 0) { // by now the number may be that of something else
        return false;
    }
    line = line.substr(0, PIPE_BUF); // more a pipe would take in parts
    const ssize_t bytes =
        _own.isValid() ? ::write(_own.get(), line.data(), line.size()) : writeWithoutWaiting(_given, line);
    return bytes == static_cast<ssize_t>(line.size());
}

} // namespace barquell::tapd
