// Draws every tab and both pages of the authorization window into a folder: preferences_pictures FOLDER
// [dark]

#include "FakeApplications.h"

#include "foundation/UserDefaults.h"
#include "foundation/interface/ControlStyle.h"
#include "menubar/AuthWindowController.h"
#include "menubar/MenuBarClasses.h"
#include "preferences/PreferencesClasses.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/tabs/PreferencesTabTouchBar.h"
#include "preferences/tabs/PreferencesTabsClasses.h"
#include "shortcuts/controls/ShortcutControls.h"
#include "support/Place.h"
#include "support/Wait.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

#include <cstdio>

namespace barquell::test {

namespace {

void turnDark() {
    QPalette dark(QColor(0x35, 0x36, 0x38), QColor(0x2a, 0x2b, 0x2d));
    dark.setColor(QPalette::Base, QColor(0x22, 0x23, 0x25));
    dark.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2b, 0x2d));
    QApplication::setPalette(dark);
}

void save(QWidget &window, const QString &folder, const char *name) {
    place().loop.advanceBy(std::chrono::seconds(1));
    runFor(std::chrono::milliseconds(500)); // a real window manager takes its time
    const QString file = QStringLiteral("%1/%2.png").arg(folder, QString::fromLatin1(name));
    if (!window.grab().save(file)) {
        std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
    }
}

void drawPreferences(const QString &folder) {
    const auto &preferences = PreferencesWindowController::cls();
    preferences.showWindow(nullptr);
    auto *controller = qobject_cast<PreferencesWindowController *>(preferences.window()->delegateObject());
    for (const char *tab : {"General", "TouchBar", "Shortcuts"}) {
        preferences.showWindow(nullptr, QString::fromLatin1(tab));
        save(*preferences.window(), folder, tab);
    }
    auto *touchBar =
        qobject_cast<PreferencesTabTouchBar *>(controller->tabs().value(QStringLiteral("TouchBar")));
    controller->preferencesTabWantsToAppear(touchBar->appsTab());
    touchBar->appsTab()->tableView()->selectRowIndexes({1});
    save(*preferences.window(), folder, "Apps");
    controller->handleKeyDown(
        {KeyEvent::Type::KeyDown, 0, kFlagOption | kFlagCommand, QStringLiteral("0"), false});
    save(*preferences.window(), folder, "Expert");
}

void drawAuthorization(const QString &folder) {
    place().platform.trust.trusted = false;
    AuthWindowController::cls().showWindow(nullptr);
    save(*AuthWindowController::cls().window(), folder, "AuthorizationRequired");
    place().platform.trust.trusted = true;
    TrustedProcessChecker::checkIsTrusted();
    save(*AuthWindowController::cls().window(), folder, "AuthorizationComplete");
}

void draw(const QString &folder) {
    FakeApplications applications;
    applications.install();
    applications.add("org.example.Draw", "Drawing Board");
    applications.add("org.example.Mail", "Letters");
    place().platform.lifecycle.policy = ActivationPolicy::Regular;
    registerPreferencesClasses();
    registerMenuBarClasses();
    registerShortcutControls();
    registerPreferencesTabs();
    UserDefaults::standard().registerDefaults({{QStringLiteral("Enabled"), true},
                                               {QStringLiteral("PauseKeyAllowed"), true},
                                               {QStringLiteral("PauseKeyFn"), true},
                                               {QStringLiteral("HUDLocation"), 1},
                                               {QStringLiteral("ClearPauseKeys"), true}});
    UserDefaults::standard().setObject(QStringList{QStringLiteral("org.example.Draw"),
                                                   QStringLiteral("org.example.Mail"),
                                                   QStringLiteral("org.example.Gone")},
                                       QStringLiteral("BypassApps"));
    UserDefaults::standard().setObject(true, QStringLiteral("ShowHUD"));
    UserDefaults::standard().setObject(true, QStringLiteral("PauseKeyOption"));
    drawPreferences(folder);
    drawAuthorization(folder);
}

} // namespace

} // namespace barquell::test

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // whose screen is small; with a scale factor use a real one
    }
    const QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: preferences_pictures FOLDER [dark]\n");
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    barquell::installControlStyle();
    if (argc > 2) {
        barquell::test::turnDark();
    }
    barquell::test::place();
    barquell::test::draw(QString::fromLocal8Bit(argv[1]));
    return 0;
}
