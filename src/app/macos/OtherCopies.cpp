#include "app/commands/OtherCopies.h"

#include "app/Place.h"
#include "foundation/Bundle.h"
#include "platform/DistributedNotifications.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"

namespace barquell {

namespace {

/// As one copy asks another at its start; no answer comes back.
QString ask(const QString &request) {
    installThisMachine();
    const QString identifier = Bundle::mainBundleIdentifier();
    if (platform().workspace->runningCopies(identifier) == 0) {
        return QStringLiteral("Barquell is not running");
    }
    platform().distributedNotifications->post(identifier + request);
    return {};
}

} // namespace

QString showRunningCopy() {
    return ask(QStringLiteral(".show"));
}

QString endRunningCopies() {
    return ask(QStringLiteral(".quit"));
}

} // namespace barquell
