#include "platform/linux/client/GrantTrust.h"

#include <QFileInfo>

#include <unistd.h>

#include <utility>

namespace barquell {

GrantTrust::GrantTrust(grant::GrantFolder grants, DistributedNotifications &notifications)
    : _grants(std::move(grants)), _path(QString::fromLocal8Bit(_grants.path().c_str())),
      _notifications(notifications), _trusted(isProcessTrusted()) {
    QObject::connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_watcher, [this] { look(); });
    rearm();
}

grant::Reading GrantTrust::reading() const {
    return _grants.read(::getuid());
}

void GrantTrust::look() {
    rearm();
    const bool now = isProcessTrusted();
    if (std::exchange(_trusted, now) != now) {
        _notifications.post(QStringLiteral("com.apple.accessibility.api"));
    }
}

void GrantTrust::rearm() {
    // Before the first grant there is no folder, and a folder can be made anew.
    QFileInfo folder(_path);
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
    if (folder.absoluteFilePath() != QFileInfo(_path).absoluteFilePath() && QFileInfo::exists(_path)) {
        rearm();
    }
}

grant::GrantFolder thisMachinesGrants() {
    const QString moved = qEnvironmentVariable("BARQUELL_GRANTS");
    return moved.isEmpty() ? grant::GrantFolder()
                           : grant::GrantFolder(moved.toLocal8Bit().toStdString(), ::geteuid());
}

} // namespace barquell
