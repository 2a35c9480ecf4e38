// Draws every window of the program into a folder: preferences_pictures FOLDER [light|dark|contrast]
// [LANGUAGE]

#include "FakeApplications.h"

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "foundation/interface/ControlStyle.h"
#include "menubar/AuthWindowController.h"
#include "menubar/LikeTheAppTracker.h"
#include "menubar/MenuBarClasses.h"
#include "platform/simulated/bar/SimulatedBarWindow.h"
#include "preferences/PreferencesClasses.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/Sheet.h"
#include "preferences/tabs/PreferencesTabTouchBar.h"
#include "preferences/tabs/PreferencesTabsClasses.h"
#include "process/AnotherCopyAlert.h"
#include "shortcuts/controls/ShortcutControls.h"
#include "support/Place.h"
#include "support/Wait.h"

#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>

namespace barquell::test {

namespace {

void turnDark() {
    QPalette dark(QColor(0x35, 0x36, 0x38), QColor(0x2a, 0x2b, 0x2d));
    dark.setColor(QPalette::Base, QColor(0x22, 0x23, 0x25));
    dark.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2b, 0x2d));
    QApplication::setPalette(dark);
}

void turnToHighContrast() {
    QPalette palette(Qt::black, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, QColor(0x99, 0x99, 0x99));
    }
    palette.setColor(QPalette::Base, Qt::black);
    palette.setColor(QPalette::AlternateBase, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::cyan);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(palette);
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

QMessageBox *question() {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(window);
        if (box && box->isVisible()) {
            return box;
        }
    }
    return nullptr;
}

void drawQuestions(const QString &folder) {
    QWidget &window = *PreferencesWindowController::cls().window();
    for (const char *text :
         {"Are you sure?", "Are you sure you want to remove selected apps from bypass list?"}) {
        confirmInSheet(&window, Bundle::localizedString(QString::fromLatin1(text)), &window, [] {});
        save(*question(), folder, QByteArray(text).size() > 20 ? "Remove" : "Reset");
        question()->reject();
    }
    LikeTheAppTracker::showDialogModalForWindow(nullptr);
    save(*question(), folder, "LikeTheApp");
    question()->reject();
    QTimer::singleShot(0, qApp, [&] {
        save(*question(), folder, "AnotherCopy");
        question()->reject();
    });
    askAboutAnotherCopy();
}

void drawBar(const QString &folder) {
    const BarControls controls;
    SimulatedBarWindow window(controls);
    window.showCounts(123, 45);
    window.ask();
    window.show();
    save(window, folder, "Bar");
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
    LikeTheAppTracker::displayTimerDidFire();
    drawPreferences(folder);
    drawQuestions(folder);
    drawAuthorization(folder);
    drawBar(folder);
}

} // namespace

} // namespace barquell::test

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // whose screen is small; with a scale factor use a real one
    }
    const QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: preferences_pictures FOLDER [light|dark|contrast] [LANGUAGE]\n");
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    barquell::installControlStyle();
    const QByteArray look = argc > 2 ? argv[2] : "light";
    if (look == "dark") {
        barquell::test::turnDark();
    } else if (look == "contrast") {
        barquell::test::turnToHighContrast();
    }
    if (argc > 3) {
        QLocale::setDefault(QLocale(QString::fromLocal8Bit(argv[3])));
    }
    barquell::test::place();
    barquell::test::draw(QString::fromLocal8Bit(argv[1]));
    return 0;
}
