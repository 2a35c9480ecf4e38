// What menus and shortcuts ask of the application.

#include "app/AppController.h"
#include "app/ToggleRule.h"
#include "applist/AppList.h"
#include "blocking/TrustedProcessChecker.h"
#include "foundation/Bundle.h"
#include "menubar/AuthWindowController.h"
#include "menubar/LikeTheAppTracker.h"
#include "preferences/PreferencesWindowController.h"
#include "process/AppHelpers.h"
#include "process/Helpers.h"
#include "process/Windows.h"

#include <QAction>

namespace barquell {

void AppController::toggleTouchBarFromNotification(const QString & /*name*/) {
    toggleActive();
}

void AppController::handleToggleShortcut(const QVariant & /*sender*/) {
    toggleActive();
}

void AppController::handleBypassShortcut(const QVariant & /*sender*/) {
    toggleFrontmostAppIgnore(QVariant::fromValue<QObject *>(this));
}

void AppController::handleRevealShortcut(const QVariant &sender) {
    const bool inFront = _frontmostApp && _frontmostApp->bundleIdentifier == Bundle::mainBundleIdentifier();
    if (inFront && PreferencesWindowController::cls().window()) {
        PreferencesWindowController::cls().closeWindow(sender.value<QObject *>());
    } else {
        showPreferencesWindow(sender);
    }
}

void AppController::toggleFrontmostAppIgnore(const QVariant & /*sender*/) {
    if (_frontmostApp && !_frontmostApp->bundleIdentifier.isEmpty()) {
        AppList::bypassAppList().toggleBundleIdentifier(_frontmostApp->bundleIdentifier);
        frontmostAppStateDidMaybeChange();
    }
}

bool AppController::validateMenuItem(QObject *item) {
    auto *const menuItem = qobject_cast<QAction *>(item);
    if (!menuItem) {
        return true;
    }
    const QString action = menuItem->property("action").toString(); // "TARGET.selector:"
    if (action.endsWith(QLatin1String(".showAuthorizationWindow:"))) {
        menuItem->setVisible(!TrustedProcessChecker::checkIsTrustedDelayObservers());
    } else if (action.endsWith(QLatin1String(".likeTheApp:"))) {
        menuItem->setVisible(LikeTheAppTracker::canDisplayButton());
    }
    return true;
}

void AppController::showPreferencesWindow(const QVariant &sender) {
    if (hasWindows()) {
        PreferencesWindowController::cls().showWindow(sender.value<QObject *>());
    }
}

void AppController::showAuthorizationWindow(const QVariant &sender) {
    if (hasWindows()) {
        AuthWindowController::cls().showWindow(sender.value<QObject *>());
    }
}

void AppController::showInAppStore(const QVariant & /*sender*/) {
    Helpers::openAppStoreURL();
}

void AppController::rateInAppStore(const QVariant & /*sender*/) {
    Helpers::openAppStoreRateURL();
}

void AppController::likeTheApp(const QVariant & /*sender*/) {
    LikeTheAppTracker::showDialogModalForWindow(nullptr);
}

void AppController::becomeBackgroundProcess(const QVariant & /*sender*/) {
    AppHelpers::becomeBackgroundProcess();
}

void AppController::openAccessibilityPrivacyPreferences(const QVariant & /*sender*/) {
    Helpers::openAccessibilityPrivacyPreferences();
}

} // namespace barquell
