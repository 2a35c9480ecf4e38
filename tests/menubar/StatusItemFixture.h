#pragma once

#include "blocking/TouchBarInterceptor.h"
#include "foundation/UserDefaults.h"
#include "platform/Applications.h"
#include "shortcuts/ShortcutMonitor.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <QHash>
#include <QIcon>

#include <gmock/gmock.h>

namespace barquell::test {

/// Applications of which only the display names are known.
class NamedApplications final : public Applications {
public:
    QString pathOfApplication(const QString & /*bundleIdentifier*/) const override { return {}; }
    QString bundleIdentifier(const QString & /*path*/) const override { return {}; }
    QString displayName(const QString &path) const override { return names.value(path); }
    QString ownName(const QString & /*path*/) const override { return {}; }
    QIcon icon(const QString & /*path*/) const override { return {}; }
    QString folder() const override { return {}; }
    QString fileType() const override { return {}; }

    QHash<QString, QString> names; ///< by path
};

/// The application's delegate, as far as a status item asks for it.
class ReopenRecorder final : public AppLifecycleDelegate {
public:
    void applicationDidFinishLaunching() override {}
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override {
        reopened.push_back(hasVisibleWindows);
        return true;
    }
    void applicationWillTerminate() override {}

    std::vector<bool> reopened; ///< what it was told of visible windows
};

/// A status item's surroundings: a scripted place, trusted, with blocking in force.
class StatusItemFixture : public testing::Test {
protected:
    StatusItemFixture() {
        here.platform.install();
        Platform withNames = platform();
        withNames.applications = &applications;
        installPlatform(withNames);
        here.platform.lifecycle.setDelegate(&delegate);
        UserDefaults::standard().registerDefaults(
            {{QStringLiteral("Enabled"), true}, {QStringLiteral("ShowStatusItem"), true}});
        TrustedProcessChecker::checkIsTrusted();
        TouchBarInterceptor::subscribeToUserDefaults();
        bar.journal.clear();
    }
    ~StatusItemFixture() override {
        here.platform.lifecycle.setDelegate(nullptr);
        here.platform.install();
    }
    StatusItemFixture(const StatusItemFixture &) = delete;
    StatusItemFixture &operator=(const StatusItemFixture &) = delete;

    static void setTrusted(bool trusted) {
        place().platform.trust.trusted = trusted;
        TrustedProcessChecker::checkIsTrusted();
    }

    static bool showsStatusItem() {
        return UserDefaults::standard().boolForKey(QStringLiteral("ShowStatusItem"));
    }

    ScriptedStatusBarItem &item() { return *bar.item(); }

    /// A title as the user reads it.
    static QString read(const QAction &menuItem) {
        return menuItem.text().replace(QStringLiteral("&&"), QStringLiteral("&"));
    }

    Place &here = place();
    ScriptedStatusBar &bar = here.platform.statusBar;
    NamedApplications applications;
    ReopenRecorder delegate;
    LogCapture log;
};

} // namespace barquell::test
