#include "platform/linux/tapd/service/Listener.h"

#include <cerrno>
#include <cstring>
#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace barquell::tapd {

namespace {

constexpr int kWaiting = 32; // clients that the kernel keeps for us

std::optional<sockaddr_un> addressOf(const std::string &path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.empty() || path.size() >= sizeof address.sun_path) {
        return std::nullopt;
    }
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

FileDescriptor newSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

/// Makes the place free: what a server that died has left behind is removed. False where one is alive.
bool clearPlace(const sockaddr_un &address) {
    const FileDescriptor probe = newSocket();
    const auto *general = reinterpret_cast<const sockaddr *>(&address);
    const bool isAlive = ::connect(probe.get(), general, sizeof address) == 0 || errno == EAGAIN;
    if (!isAlive && errno == ECONNREFUSED) {
        ::unlink(address.sun_path);
    }
    return !isAlive;
}

/// Nobody but us can connect before open() to others is what was asked for.
bool bindClosed(int socket, const sockaddr_un &address) {
    const mode_t before = ::umask(0777);
    const int result = ::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address);
    ::umask(before);
    return result == 0;
}

bool giveAccess(const SocketOptions &options) {
    if (!options.group.empty()) {
        const group *entry = ::getgrnam(options.group.c_str()); // before any other thread could exist
        if (!entry || ::chown(options.path.c_str(), static_cast<uid_t>(-1), entry->gr_gid) < 0) {
            return false;
        }
    }
    return ::chmod(options.path.c_str(), options.mode) == 0;
}

} // namespace

std::optional<Listener> Listener::open(const SocketOptions &options, std::string &problem) {
    const auto address = addressOf(options.path);
    if (!address) {
        problem = options.path + ": no path for a socket";
        return std::nullopt;
    }
    const std::string folder = options.path.substr(0, options.path.rfind('/') + 1);
    if (!folder.empty()) {
        ::mkdir(folder.c_str(), 0755);
    }
    if (!clearPlace(*address)) {
        problem = options.path + ": another server listens there";
        return std::nullopt;
    }
    FileDescriptor socket = newSocket();
    if (!bindClosed(socket.get(), *address)) {
        problem = options.path + ": " + std::strerror(errno);
        return std::nullopt;
    }
    Listener listener(std::move(socket), options.path);
    if (::listen(listener.descriptor(), kWaiting) < 0 || !giveAccess(options)) {
        problem = options.path + ": its mode or group cannot be set";
        return std::nullopt;
    }
    return listener;
}

Listener::~Listener() {
    if (_socket.isValid()) {
        ::unlink(_path.c_str());
    }
}

FileDescriptor Listener::accept() const {
    return FileDescriptor(::accept4(_socket.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
}

} // namespace barquell::tapd
