#include "platform/linux/client/SocketTrust.h"

#include <QFileInfo>

#include <unistd.h>

namespace barquell {

SocketTrust::SocketTrust(QString socketPath, DistributedNotifications &notifications)
    : _socketPath(std::move(socketPath)), _notifications(notifications) {
    QObject::connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_watcher,
                     [this] { _notifications.post(QStringLiteral("com.apple.accessibility.api")); });
    watchFolder();
}

void SocketTrust::watchFolder() {
    // Without a server there is no folder either; the poll of the trust monitor finds it later.
    const QString folder = QFileInfo(_socketPath).path();
    if (QFileInfo::exists(folder)) {
        _watcher.addPath(folder);
    }
}

bool SocketTrust::isProcessTrusted() const {
    return ::access(_socketPath.toLocal8Bit().constData(), W_OK) == 0;
}

} // namespace barquell
