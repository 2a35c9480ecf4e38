// One running copy: what AppHelpers does at launch.

#include "foundation/Bundle.h"
#include "foundation/Values.h"
#include "platform/AppLifecycle.h"
#include "platform/DistributedNotifications.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "process/AnotherCopyAlert.h"
#include "process/AppHelpers.h"

#include <QtGlobal>

namespace barquell {

namespace {

QString showRequest() {
    return Bundle::mainBundleIdentifier() + QStringLiteral(".show");
}

QString quitRequest() {
    return Bundle::mainBundleIdentifier() + QStringLiteral(".quit");
}

bool isAnotherCopyInTheWay() {
    return platform().workspace->runningCopies(Bundle::mainBundleIdentifier()) >= 2 &&
           !boolValue(qEnvironmentVariable("AllowMultipleInstances"));
}

/// True where this copy is to go on.
bool settleWithAnotherCopy() {
    switch (askAboutAnotherCopy()) {
    case CopyChoice::QuitAnother:
        platform().distributedNotifications->post(quitRequest());
        return true;
    case CopyChoice::KeepAll:
        return true;
    case CopyChoice::ShowAnother:
        platform().distributedNotifications->post(showRequest());
        return false;
    case CopyChoice::QuitThis:
        break;
    }
    return false;
}

/// Begins only now, or a copy that asked the others to quit would do so itself.
void answerOtherCopies() {
    DistributedNotifications &notifications = *platform().distributedNotifications;
    static const auto quitting = notifications.observe(
        quitRequest(), [](const QString & /*name*/) { platform().appLifecycle->terminate(); });
    static const auto showing = notifications.observe(showRequest(), [](const QString & /*name*/) {
        if (AppLifecycleDelegate *delegate = platform().appLifecycle->delegate()) {
            delegate->applicationShouldHandleReopen(false);
        }
    });
}

} // namespace

Startup AppHelpers::startupCheck() {
    initialize();
    const bool atLogin = isLaunchedFromLoginItem();
    if (isAnotherCopyInTheWay() && (atLogin || !settleWithAnotherCopy())) {
        platform().appLifecycle->terminate();
        return Startup::Ending;
    }
    answerOtherCopies();
    return atLogin ? Startup::ByLoginItem : Startup::ByUser;
}

bool AppHelpers::isLaunchedFromLoginItem() {
    initialize();
    return qEnvironmentVariableIsSet("FromLoginItem");
}

} // namespace barquell
