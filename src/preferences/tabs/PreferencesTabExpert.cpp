#include "preferences/tabs/PreferencesTabExpert.h"

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "menubar/AuthWindowController.h"
#include "platform/AccessibilityTrust.h"
#include "platform/Diagnostics.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "preferences/Sheet.h"
#include "preferences/tabs/OutputWindow.h"
#include "process/Helpers.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>

namespace barquell {

namespace {

QString settingsFile() {
    return platform().diagnostics ? platform().diagnostics->settingsFile() : QString();
}

QStringList logCommand() {
    return platform().diagnostics ? platform().diagnostics->logCommand() : QStringList();
}

} // namespace

void PreferencesTabExpert::viewDidLoad() {
    if (_privacyButton) {
        _privacyButton->setVisible(platform().accessibilityTrust->hasPrivacyPage());
    }
}

void PreferencesTabExpert::showAuthorizationWindow(const QVariant &sender) {
    AuthWindowController::cls().showWindow(sender.value<QObject *>());
}

void PreferencesTabExpert::showAccessibilityPrivacyPreferences(const QVariant & /*sender*/) {
    Helpers::openAccessibilityPrivacyPreferences();
}

void PreferencesTabExpert::resetSettings(const QVariant & /*sender*/) {
    confirmInSheet(view()->window(), Bundle::localizedString(QStringLiteral("Are you sure?")), this,
                   [] { UserDefaults::standard().removePersistentDomain(); });
}

void PreferencesTabExpert::revealMenu(const QVariant &sender) {
    if (!_menu) {
        return;
    }
    const auto *view = qobject_cast<QWidget *>(sender.value<QObject *>());
    _menu->popup(view ? view->mapToGlobal(QPoint(0, view->height())) : QPoint(0, 0));
}

void PreferencesTabExpert::revealSettingsFile(const QVariant & /*sender*/) {
    platform().workspace->openUrl(QUrl::fromLocalFile(QFileInfo(settingsFile()).path()));
}

void PreferencesTabExpert::revealLog(const QVariant & /*sender*/) {
    OutputWindow::showOutputOf(logCommand(), Bundle::localizedString(QStringLiteral("Log")));
}

void PreferencesTabExpert::revealReport(const QVariant & /*sender*/) {
    OutputWindow::showOutputOf({QCoreApplication::applicationFilePath(), QStringLiteral("doctor")},
                               Bundle::localizedString(QStringLiteral("Report")));
}

bool PreferencesTabExpert::validateMenuItem(QObject *item) const {
    if (item->objectName() == QLatin1String("revealSettings")) {
        return !settingsFile().isEmpty() && platform().workspace;
    }
    return item->objectName() != QLatin1String("revealLog") || !logCommand().isEmpty();
}

} // namespace barquell
