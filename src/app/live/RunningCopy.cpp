#include "app/live/RunningCopy.h"

#include <QStandardPaths>

namespace barquell {

namespace {

QString lockPath() {
    // Without a runtime folder (no login session) the temporary one has to do.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    }
    return folder + QStringLiteral("/com.vexolith.barquell.lock");
}

} // namespace

RunningCopy::RunningCopy() : _lock(lockPath()) {
    _lock.setStaleLockTime(0); // a living copy keeps its mark however long it runs
}

bool RunningCopy::claim() {
    return _lock.tryLock(0);
}

std::optional<qint64> RunningCopy::processId() {
    QLockFile lock(lockPath());
    lock.setStaleLockTime(0);
    if (lock.tryLock(0) || lock.error() != QLockFile::LockFailedError) {
        return std::nullopt;
    }
    qint64 pid = 0;
    QString host;
    QString application;
    lock.getLockInfo(&pid, &host, &application);
    return pid;
}

} // namespace barquell
