#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/DistributedNotifications.h"

#include <QFileSystemWatcher>
#include <QString>

namespace barquell {

/// Until a grant exists, who may speak to the tap server may filter: the socket's owner and mode decide.
class SocketTrust final : public AccessibilityTrust {
public:
    /// Posts the accessibility notification when the socket comes, goes or changes its mode. The
    /// notifications must outlive this. Main thread only.
    SocketTrust(QString socketPath, DistributedNotifications &notifications);

    bool isProcessTrusted() const override;
    bool hasPrivacyPage() const override { return false; }

private:
    void rearm();
    void look();

    const QString _socketPath;
    DistributedNotifications &_notifications;
    QFileSystemWatcher _watcher; // the socket's folder, or the nearest one above it that exists
    bool _trusted;
};

} // namespace barquell
