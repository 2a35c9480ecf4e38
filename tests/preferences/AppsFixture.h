#pragma once

#include "FakeApplications.h"
#include "PreferencesWindowFixture.h"

#include "applist/AppList.h"
#include "foundation/NotificationCenter.h"
#include "menubar/MenuBarClasses.h"
#include "preferences/tabs/PreferencesTabTouchBar.h"
#include "preferences/tabs/PreferencesTabsClasses.h"
#include "shortcuts/controls/ShortcutControls.h"

#include <QMessageBox>
#include <QPushButton>

namespace barquell::test {

/// The program's own preferences, open on the Apps tab.
class AppsFixture : public PreferencesWindowFixture {
protected:
    AppsFixture() {
        applications.install();
        registerMenuBarClasses();
        registerShortcutControls();
        registerPreferencesTabs();
        set("AnimatedWindowSizing", false);
    }

    void openWith(const QStringList &identifiers) {
        set("BypassApps", identifiers);
        AppList::bypassAppList();
        NotificationCenter::defaultCenter().addObserver(_listener, appListChangedNotification(),
                                                        [this](const Notification &) { ++announcements; });
        controller = PreferencesWindowController::create();
        controller->showWindow(nullptr, QStringLiteral("TouchBar"));
        here.loop.runPending();
        touchBar()->showApps({});
        announcements = 0;
    }

    PreferencesTabTouchBar *touchBar() {
        return qobject_cast<PreferencesTabTouchBar *>(controller->tabs().value(QStringLiteral("TouchBar")));
    }
    PreferencesTabApps &apps() { return *touchBar()->appsTab(); }
    AppRuleTable &table() { return *apps().tableView(); }

    static QStringList list() {
        QStringList identifiers;
        for (const QVariant &each : AppList::bypassAppList()) {
            identifiers.append(each.toString());
        }
        return identifiers;
    }

    QMessageBox *sheet() { return window().findChild<QMessageBox *>(); }
    void answer(const char *button) {
        for (QAbstractButton *each : sheet()->buttons()) {
            if (each->text() == QLatin1String(button)) {
                each->click();
                return;
            }
        }
        FAIL() << "no such button";
    }

    FakeApplications applications;
    int announcements = 0;

private:
    QObject _listener;
};

} // namespace barquell::test
