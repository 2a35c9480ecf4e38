#include "platform/linux/client/SocketTrust.h"

#include <QFileInfo>

#include <unistd.h>

#include <utility>

namespace barquell {

SocketTrust::SocketTrust(QString socketPath, DistributedNotifications &notifications)
    : _socketPath(std::move(socketPath)), _notifications(notifications), _trusted(isProcessTrusted()) {
    QObject::connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_watcher, [this] { look(); });
    rearm();
}

void SocketTrust::look() {
    rearm();
    const bool now = isProcessTrusted();
    if (std::exchange(_trusted, now) != now) {
        _notifications.post(QStringLiteral("com.apple.accessibility.api"));
    }
}

void SocketTrust::rearm() {
    // Before the first server there is no folder, and a folder can be made anew.
    QFileInfo folder(QFileInfo(_socketPath).path());
    while (!folder.exists()) {
        folder.setFile(folder.path());
    }
    const QStringList wanted{folder.filePath()};
    if (_watcher.directories() == wanted) {
        return;
    }
    if (!_watcher.directories().isEmpty()) {
        _watcher.removePaths(_watcher.directories());
    }
    _watcher.addPaths(wanted);
    // It may have come between the look and the watch.
    if (QFileInfo(_socketPath).absolutePath() != folder.absoluteFilePath() &&
        QFileInfo::exists(QFileInfo(_socketPath).path())) {
        rearm();
    }
}

bool SocketTrust::isProcessTrusted() const {
    return ::access(_socketPath.toLocal8Bit().constData(), W_OK) == 0;
}

} // namespace barquell
