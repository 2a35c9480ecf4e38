#include "app/commands/StartCommand.h"

#include "app/Place.h"
#include "app/RegisteredDefaults.h"
#include "app/StateChangeText.h"
#include "app/commands/Arguments.h"
#include "app/live/RunningCopy.h"
#include "app/live/TerminationSignals.h"
#include "blocking/TouchBarInterceptor.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"

#include <QCoreApplication>

namespace barquell {

namespace {

void logStateChange(const Notification &notification) {
    const int source = notification.userInfo.value(QStringLiteral("source")).toInt();
    log(stateChangeText(source, TouchBarInterceptor::effectivelyEnabled()));
}

} // namespace

int runStart(const QStringList & /*arguments*/) {
    RunningCopy copy;
    const RunningCopy::Claim claim = copy.claim();
    if (claim == RunningCopy::Claim::Taken) {
        return failure(QStringLiteral("another copy is running (see 'barquell status')"));
    }
    if (claim == RunningCopy::Claim::Impossible) {
        log(QStringLiteral("No mark of this copy can be left; a second one would not be noticed"));
    }
    const TerminationSignals signalled([] { QCoreApplication::quit(); });
    installThisMachine();
    registerDefaults(UserDefaults::standard());
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(observer, touchBarStateChangedNotification(),
                                                    logStateChange);
    RunLoop::main().performAsync([] {
        TouchBarInterceptor::subscribeToUserDefaults();
        if (!TrustedProcessChecker::isTrusted()) {
            log(QStringLiteral("Not trusted to filter; touches pass (see 'barquell doctor')"));
        }
    });
    return QCoreApplication::exec();
}

} // namespace barquell
