#include "platform/linux/tapd/service/Listener.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <systemd/sd-daemon.h>

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

/// The mode of what is made while this lives does not depend on who started us.
class Umask {
public:
    explicit Umask(mode_t mask) : _before(::umask(mask)) {}
    ~Umask() { ::umask(_before); }
    Umask(const Umask &) = delete;
    Umask &operator=(const Umask &) = delete;

private:
    mode_t _before;
};

/// One that is there stays as it is.
void makeFolderOf(const std::string &path) {
    const std::string folder = path.substr(0, path.rfind('/') + 1);
    const Umask none(0);
    if (!folder.empty()) {
        ::mkdir(folder.c_str(), 0755);
    }
}

enum class Place { Free, Alive, NoSocket };

/// Makes the place free: what a server that died has left behind is removed, and nothing else. A connection
/// to a file that is no socket is refused just as one to a dead server's.
Place clearPlace(const sockaddr_un &address) {
    struct stat found {};
    if (::lstat(address.sun_path, &found) < 0) {
        return Place::Free; // or out of reach, as bind() will tell
    }
    if (!S_ISSOCK(found.st_mode)) {
        return Place::NoSocket;
    }
    const FileDescriptor probe = newSocket();
    const auto *general = reinterpret_cast<const sockaddr *>(&address);
    if (::connect(probe.get(), general, sizeof address) == 0 || errno == EAGAIN) {
        return Place::Alive;
    }
    if (errno == ECONNREFUSED) {
        ::unlink(address.sun_path);
    }
    return Place::Free;
}

/// Nobody but us can connect before open() to others is what was asked for.
bool bindClosed(int socket, const sockaddr_un &address) {
    const Umask all(0777);
    return ::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
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
    makeFolderOf(options.path);
    if (const Place place = clearPlace(*address); place != Place::Free) {
        problem = options.path + (place == Place::Alive ? ": another server listens there"
                                                        : ": something that is no socket has that name");
        return std::nullopt;
    }
    FileDescriptor socket = newSocket();
    if (!bindClosed(socket.get(), *address)) {
        problem = options.path + ": " + std::strerror(errno);
        return std::nullopt;
    }
    Listener listener(std::move(socket), options.path);
    listener.own();
    if (::listen(listener.descriptor(), kWaiting) < 0 || !giveAccess(options)) {
        problem = options.path + ": its mode or group cannot be set";
        return std::nullopt;
    }
    return listener;
}

bool Listener::isHandedOver() {
    return ::sd_listen_fds(0) > 0;
}

std::optional<Listener> Listener::take(std::string &problem) {
    const int count = ::sd_listen_fds(1);
    const int socket = SD_LISTEN_FDS_START;
    if (count != 1 || ::sd_is_socket_unix(socket, SOCK_SEQPACKET, 1, nullptr, 0) <= 0) {
        problem = "what was handed over is not one listening socket of packets";
        return std::nullopt;
    }
    ::fcntl(socket, F_SETFL, ::fcntl(socket, F_GETFL) | O_NONBLOCK);
    sockaddr_un address{};
    socklen_t size = sizeof address - 1; // so that the path ends
    ::getsockname(socket, reinterpret_cast<sockaddr *>(&address), &size);
    return Listener(FileDescriptor(socket), address.sun_path);
}

/// The file is ours to remove.
void Listener::own() {
    struct stat made {};
    if (::lstat(_path.c_str(), &made) == 0) {
        _device = made.st_dev;
        _inode = made.st_ino;
    }
}

/// By now the path may name another server's socket. As long as ours is open its number is not given away.
bool Listener::isOurs() const {
    struct stat found {};
    return ::lstat(_path.c_str(), &found) == 0 && found.st_dev == _device && found.st_ino == _inode;
}

Listener::~Listener() {
    if (_socket.isValid() && isOurs()) {
        ::unlink(_path.c_str());
    }
}

FileDescriptor Listener::accept() const {
    return FileDescriptor(::accept4(_socket.get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
}

} // namespace barquell::tapd
