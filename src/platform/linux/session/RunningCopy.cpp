#include "platform/linux/session/RunningCopy.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace barquell {

namespace {

QString lockPath() {
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!folder.isEmpty()) {
        return folder + QStringLiteral("/com.vexolith.barquell.lock");
    }
    // Without a runtime folder (no login session) the temporary one has to do, which all users share.
    return QDir::tempPath() + QStringLiteral("/com.vexolith.barquell.%1.lock").arg(::getuid());
}

bool isCopyOfUs(qint64 processId) {
    const QFileInfo program(QStringLiteral("/proc/%1/exe").arg(processId));
    return QFileInfo(program.symLinkTarget()).fileName() ==
           QFileInfo(QCoreApplication::applicationFilePath()).fileName();
}

} // namespace

RunningCopy::RunningCopy() : _lock(lockPath()) {
    _lock.setStaleLockTime(0); // a living copy keeps its mark however long it runs
}

RunningCopy::Claim RunningCopy::claim() {
    if (_lock.tryLock(0)) {
        return Claim::Ours;
    }
    return _lock.error() == QLockFile::LockFailedError ? Claim::Taken : Claim::Impossible;
}

std::optional<qint64> RunningCopy::processId() {
    const QLockFile lock(lockPath());
    qint64 processId = 0;
    QString host;
    QString application;
    if (!lock.getLockInfo(&processId, &host, &application) || !isCopyOfUs(processId)) {
        return std::nullopt;
    }
    return processId;
}

} // namespace barquell
