#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/DistributedNotifications.h"
#include "platform/linux/grant/GrantFolder.h"

#include <QFileSystemWatcher>

namespace barquell {

/// Whoever has a grant is trusted. It is read from the disk; the tap server is not asked, nor started.
class GrantTrust final : public AccessibilityTrust {
public:
    /// Posts the accessibility notification when this user's grant comes or goes. The notifications must
    /// outlive this. Main thread only.
    GrantTrust(grant::GrantFolder grants, DistributedNotifications &notifications);

    bool isProcessTrusted() const override { return reading().state == grant::State::Held; }
    bool hasPrivacyPage() const override { return true; }

    /// This user's grant.
    grant::Reading reading() const;

private:
    void rearm();
    void look();

    const grant::GrantFolder _grants;
    const QString _path;
    DistributedNotifications &_notifications;
    QFileSystemWatcher _watcher; // the grants' folder, or the nearest one above it that exists
    bool _trusted;
};

/// Where this machine's grants lie, or those that BARQUELL_GRANTS names, which may then be the user's own:
/// who deceives the program so is refused by the server.
grant::GrantFolder thisMachinesGrants();

} // namespace barquell
