#include "app/AppController.h"

#include "applist/AppList.h"
#include "blocking/TouchBarInterceptor.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "menubar/LikeTheAppTracker.h"
#include "platform/DistributedNotifications.h"
#include "platform/Platform.h"
#include "process/AppHelpers.h"
#include "process/Helpers.h"
#include "process/Windows.h"
#include "shortcuts/ShortcutMonitor.h"

namespace barquell {

AppController::AppController(QObject *parent) : KeyValueObserver(parent) {}

AppController::~AppController() {
    TrustedProcessChecker::removeObserver(this);
    _observations.clear();
    NotificationCenter::defaultCenter().removeObserver(*this);
}

void AppController::applicationDidFinishLaunching() {
    const Startup startup = AppHelpers::startupCheck();
    if (startup == Startup::Ending) {
        return;
    }
    takeShortcuts();
    followDistributedNotifications();
    subscribeToUserDefaultsKeyPath(QStringLiteral("ShowStatusItem"), "observeShowStatusItem:", true);
    subscribeToUserDefaultsKeyPath(QStringLiteral("ShowHUD"), "observeShowHUD:", true);
    Helpers::runOnMainThread([] { TouchBarInterceptor::subscribeToUserDefaults(); });
    LikeTheAppTracker::start();
    if (startup != Startup::ByLoginItem) {
        showFirstWindow(UserDefaults::standard().boolForKey(QStringLiteral("SilentStart")));
    }
    NotificationCenter::defaultCenter().addObserver(
        *this, appListChangedNotification(),
        [this](const Notification &) { frontmostAppStateDidMaybeChange(); }, &AppList::bypassAppList());
    _observations.push_back(platform().workspace->observeActivation([this] { frontmostAppDidChange(); }));
    frontmostAppDidChange();
    if (!platform().workspace->canKnowFrontmostApplication()) {
        log(QStringLiteral("Nothing tells which application is in front; the bypass list has no effect"));
    }
    Q_EMIT launched();
}

void AppController::takeShortcuts() {
    const std::pair<const char *, Selector> actions[] = {{"ToggleShortcut", "handleToggleShortcut:"},
                                                         {"BypassShortcut", "handleBypassShortcut:"},
                                                         {"RevealShortcut", "handleRevealShortcut:"}};
    for (const auto &[name, action] : actions) {
        ShortcutMonitor::monitorWithName(QString::fromLatin1(name))->setTarget(this, action);
    }
}

void AppController::followDistributedNotifications() {
    const std::pair<const char *, std::function<void(const QString &)>> actions[] = {
        {"com.apple.shieldWindowRaised", [this](const QString &) { pauseInterceptor(); }},
        {"com.apple.shieldWindowLowered", [this](const QString &) { resumeInterceptor(); }},
        {"com.vexolith.barquell.toggle",
         [this](const QString &name) { toggleTouchBarFromNotification(name); }},
    };
    for (const auto &[name, action] : actions) {
        _observations.push_back(
            platform().distributedNotifications->observe(QString::fromLatin1(name), action));
    }
}

bool AppController::applicationShouldHandleReopen(bool /*hasVisibleWindows*/) {
    showFirstWindow(false);
    return true;
}

void AppController::applicationWillTerminate() {
    _statusItemObjects.clear();
}

void AppController::showFirstWindow(bool silent) {
    const QVariant sender = QVariant::fromValue<QObject *>(this);
    if (!TrustedProcessChecker::checkIsTrustedDelayObservers()) {
        showAuthorizationWindow(sender);
    } else if (!silent) {
        showPreferencesWindow(sender);
    }
}

void AppController::pauseInterceptor() {
    TouchBarInterceptor::updatePauseFlags(PauseFlagScreenShield, true);
}

void AppController::resumeInterceptor() {
    TouchBarInterceptor::updatePauseFlags(PauseFlagScreenShield, false);
}

void AppController::frontmostAppDidChange() {
    _frontmostApp = platform().workspace->frontmostApplication();
    if (_statusItemController) {
        _statusItemController->setFrontmostApp(_frontmostApp);
    }
    frontmostAppStateDidMaybeChange();
}

void AppController::frontmostAppStateDidMaybeChange() {
    const bool bypassed = _frontmostApp && !_frontmostApp->bundleIdentifier.isEmpty() &&
                          AppList::bypassAppList().containsBundleIdentifier(_frontmostApp->bundleIdentifier);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, bypassed);
    if (_statusItemController) {
        _statusItemController->setFrontmostAppBypassed(TouchBarInterceptor::pauseFlags() &
                                                       PauseFlagBypassedApp);
    }
}

void AppController::observeShowStatusItem(const QVariant &value) {
    if (!boolValue(value)) {
        _statusItemObjects.clear();
    } else if (!_statusItemController && hasWindows()) {
        _statusItemObjects = StatusItemController::loadFromNib(this);
        if (_statusItemController) {
            _statusItemController->setFrontmostApp(_frontmostApp);
            _statusItemController->setFrontmostAppBypassed(TouchBarInterceptor::pauseFlags() &
                                                           PauseFlagBypassedApp);
        }
    }
}

void AppController::observeShowHUD(const QVariant &value) {
    if (boolValue(value)) {
        if (!_touchBarHUDController && hasWindows()) {
            _touchBarHUDObjects = TouchBarHUDController::loadFromNib(this);
        }
        return;
    }
    if (_touchBarHUDController) {
        _touchBarHUDController->closeWindow();
    }
    _touchBarHUDObjects.clear();
}

} // namespace barquell
