#include "app/Entry.h"

#include "app/Application.h"
#include "app/RegisteredDefaults.h"
#include "app/StateChangeText.h"
#include "blocking/TouchBarInterceptor.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "platform/Platform.h"
#include "shortcuts/ShortcutMonitor.h"

namespace barquell {

namespace {

constexpr std::uint64_t kKeyU = 32; // kVK_ANSI_U, HIToolbox/Events.h
constexpr ModifierFlags kControlOptionCommand = kFlagControl | kFlagOption | kFlagCommand;

void foldActiveIntoEnabled(UserDefaults &settings) {
    const QString active = QStringLiteral("Active");
    const QVariant stored = settings.objectForKey(active);
    if (stored.isValid()) {
        settings.removeObjectForKey(active);
        settings.setObject(boolValue(stored), QStringLiteral("Enabled"));
    }
}

void logStateChange(const Notification &notification) {
    const int source = notification.userInfo.value(QStringLiteral("source")).toInt();
    log(stateChangeText(source, TouchBarInterceptor::effectivelyEnabled()));
}

void sayWhereNotTrusted() {
    if (!TrustedProcessChecker::isTrusted()) {
        log(QStringLiteral("Not trusted to filter; touches pass (see 'barquell doctor')"));
    }
}

} // namespace

void prepareSettings() {
    ShortcutMonitor::registerDefaultForName(QStringLiteral("RevealShortcut"), kKeyU, kControlOptionCommand,
                                            false);
    UserDefaults &settings = UserDefaults::standard();
    foldActiveIntoEnabled(settings);
    registerDefaults(settings);
}

int runApplication(const std::function<void()> &onLaunched) {
    prepareSettings();
    QObject observer;
    NotificationCenter::defaultCenter().addObserver(observer, touchBarStateChangedNotification(),
                                                    logStateChange);
    Application application;
    application.load();
    QObject::connect(application.delegate(), &AppController::launched, application.delegate(), [&] {
        RunLoop::main().performAsync(sayWhereNotTrusted); // after blocking has started from there
        onLaunched();
    });
    return platform().appLifecycle->run();
}

} // namespace barquell
