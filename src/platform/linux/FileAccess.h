#pragma once

#include "platform/linux/FileDescriptor.h"

#include <QByteArray>
#include <QString>

namespace barquell {

/// What errno says.
QString systemError();

/// A file's bytes, or why there are none. Missing is not refused.
struct FileContent {
    enum class State { Missing, Read, Refused };

    State state = State::Missing;
    QByteArray bytes;
    QString refusal;
};

/// Reads a regular file of at most so many bytes. Never waits for a pipe or a device.
FileContent readRegularFile(const QString &path, qint64 limit);

/// Replaces the file as a whole: whatever happens, a power cut included, what lies at the path is the old
/// content or the new one. Keeps the old file's mode and owner; a new file is its owner's alone. Not for two
/// writers at once. Returns why it failed; empty on success.
QString replaceFile(const QString &path, const QByteArray &bytes);

/// Creates what is missing of the folder, for its owner alone. Returns why it failed; empty on success.
QString makeFolder(const QString &path);

/// Where the path leads when its last component is a symbolic link, also one to nothing; else the path.
QString followLinks(const QString &path);

/// An advisory lock between processes, held while this lives. Waits for a tenth of a second at most, since
/// whoever holds it may have been stopped.
class FileLock {
public:
    enum class State { Held, Busy, Failed };

    explicit FileLock(const QString &path);

    State state() const { return _state; }
    const QString &error() const { return _error; } ///< where it failed

private:
    FileDescriptor _file;
    State _state = State::Failed;
    QString _error;
};

} // namespace barquell
