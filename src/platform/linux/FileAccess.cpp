#include "platform/linux/FileAccess.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

namespace barquell {

namespace {

constexpr mode_t kOwnFile = 0600;
constexpr mode_t kOwnFolder = 0700;
constexpr mode_t kModeBits = 07777;
constexpr int kLinkLimit = 40; // the kernel's own

FileDescriptor openFile(const QString &path, int flags, mode_t mode = 0) {
    return FileDescriptor(::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode));
}

FileContent refused(const QString &why) {
    return {FileContent::State::Refused, QByteArray(), why};
}

FileContent readAll(int file, qint64 limit) {
    QByteArray bytes;
    constexpr qsizetype chunk = 65536;
    while (bytes.size() <= limit) {
        const qsizetype length = bytes.size();
        bytes.resize(length + chunk);
        const ssize_t count = ::read(file, bytes.data() + length, chunk);
        bytes.resize(length + std::max<ssize_t>(count, 0));
        if (count == 0) {
            return {FileContent::State::Read, bytes, QString()};
        }
        if (count < 0 && errno != EINTR) {
            return refused(systemError());
        }
    }
    return refused(QStringLiteral("it is larger than %1 bytes").arg(limit));
}

bool writeAll(int file, const QByteArray &bytes) {
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            ::write(file, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR) {
            return false;
        }
        written += std::max<ssize_t>(count, 0);
    }
    return true;
}

/// The new file looks like the one that it replaces. The owner is kept where we may; it rarely differs.
bool takeModeAndOwner(int file, const QByteArray &from) {
    struct stat old = {};
    if (::stat(from.constData(), &old) != 0) {
        return errno == ENOENT;
    }
    [[maybe_unused]] const int owned = ::fchown(file, old.st_uid, old.st_gid);
    return ::fchmod(file, old.st_mode & kModeBits) == 0;
}

bool writeAndRename(const QByteArray &path, const QByteArray &temporary, const QByteArray &bytes) {
    const FileDescriptor file(
        ::open(temporary.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kOwnFile));
    return file.isValid() && takeModeAndOwner(file.get(), path) && writeAll(file.get(), bytes) &&
           ::fsync(file.get()) == 0 && std::rename(temporary.constData(), path.constData()) == 0;
}

} // namespace

QString systemError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

FileContent readRegularFile(const QString &path, qint64 limit) {
    // Looked at before it is opened, since opening a device may already do something.
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) {
        return errno == ENOENT ? FileContent() : refused(systemError());
    }
    const QString notRegular = QStringLiteral("it is not a regular file");
    if (!S_ISREG(status.st_mode)) {
        return refused(notRegular);
    }
    const FileDescriptor file = openFile(path, O_RDONLY | O_NONBLOCK | O_NOCTTY);
    if (!file.isValid()) {
        return errno == ENOENT ? FileContent() : refused(systemError());
    }
    if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return refused(notRegular);
    }
    return readAll(file.get(), limit);
}

QString replaceFile(const QString &path, const QByteArray &bytes) {
    const QByteArray target = QFile::encodeName(path);
    // One fixed name, so that a writer that was killed leaves one file behind at most, and the next one
    // clears it.
    const QByteArray temporary = target + ".new";
    ::unlink(temporary.constData());
    if (!writeAndRename(target, temporary, bytes)) {
        QString error = systemError();
        ::unlink(temporary.constData());
        return error;
    }
    // Until the folder is on the disk as well, a power cut may bring the old content back; where that fails
    // there is nothing to undo.
    const FileDescriptor folder = openFile(QFileInfo(path).absolutePath(), O_RDONLY | O_DIRECTORY);
    ::fsync(folder.get());
    return {};
}

QString makeFolder(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    if (::mkdir(name.constData(), kOwnFolder) == 0) {
        return {};
    }
    if (errno == EEXIST) {
        return QFileInfo(path).isDir() ? QString() : QString::fromLocal8Bit(std::strerror(ENOTDIR));
    }
    const QString parent = QFileInfo(path).absolutePath();
    if (errno != ENOENT || parent == path) {
        return systemError();
    }
    QString error = makeFolder(parent);
    if (!error.isEmpty()) {
        return error;
    }
    return ::mkdir(name.constData(), kOwnFolder) == 0 || errno == EEXIST ? QString() : systemError();
}

QString followLinks(const QString &path) {
    QString target = path;
    for (int links = 0; links < kLinkLimit && QFileInfo(target).isSymbolicLink(); ++links) {
        target = QFileInfo(target).symLinkTarget(); // absolute
    }
    return target;
}

FileLock::FileLock(const QString &path)
    : _file(openFile(path, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK, kOwnFile)) {
    if (!_file.isValid()) {
        _error = systemError();
        return;
    }
    constexpr int tries = 20;
    constexpr std::chrono::milliseconds pause{5};
    for (int attempt = 0; attempt < tries; ++attempt) {
        if (::flock(_file.get(), LOCK_EX | LOCK_NB) == 0) {
            _state = State::Held;
            return;
        }
        if (errno != EWOULDBLOCK && errno != EINTR) {
            _error = systemError();
            return;
        }
        std::this_thread::sleep_for(pause);
    }
    _state = State::Busy;
}

} // namespace barquell
