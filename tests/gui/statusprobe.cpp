/// statusprobe [dark]: the program's status item on the panel of the session, in a place where all else is
/// scripted. Says "menu opened" once the menu has the keys, "menu closed", the action that an item sends,
/// "Enabled is yes" and "...no", and "reopened"; first of all whether it knows of a panel at once. With
/// "dark" the desktop's colours are light on dark.

#include "say.h"

#include "blocking/TouchBarInterceptor.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"
#include "menubar/LikeTheAppTracker.h"
#include "menubar/MenuBarClasses.h"
#include "menubar/StatusItemController.h"
#include "platform/linux/session/MessageBus.h"
#include "platform/linux/statusbar/DesktopStatusBar.h"
#include "platform/simulated/ScriptedPlatform.h"
#include "shortcuts/ShortcutMonitor.h"
#include "shortcuts/controls/ShortcutControls.h"

#include <QApplication>
#include <QPalette>

using namespace barquell;

namespace {} // namespace

/// Owns the status item and takes what its menu sends.
class Delegate : public QObject, public AppLifecycleDelegate {
    Q_OBJECT
    Q_PROPERTY(barquell::StatusItemController *statusItemController MEMBER controller)

public:
    void applicationDidFinishLaunching() override {}
    bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) override {
        say(QStringLiteral("reopened"));
        return true;
    }
    void applicationWillTerminate() override { QCoreApplication::quit(); }

    Q_INVOKABLE void toggleFrontmostAppIgnore(const QVariant & /*sender*/) {
        bypassed = !bypassed;
        TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, bypassed);
        controller->setFrontmostAppBypassed(bypassed);
        say(QStringLiteral("bypass"));
    }
    Q_INVOKABLE void showPreferencesWindow(const QVariant & /*sender*/) {
        say(QStringLiteral("preferences"));
    }
    Q_INVOKABLE void showAuthorizationWindow(const QVariant & /*sender*/) {
        say(QStringLiteral("authorization"));
    }
    Q_INVOKABLE void likeTheApp(const QVariant & /*sender*/) {
        LikeTheAppTracker::showDialogModalForWindow(nullptr);
    }
    Q_INVOKABLE void becomeBackgroundProcess(const QVariant & /*sender*/) {
        say(QStringLiteral("background"));
    }

    Q_INVOKABLE bool validateMenuItem(QObject *item) {
        if (item->objectName() == QLatin1String("authorizationMenuItem")) {
            item->setProperty("visible", false);
        }
        return true;
    }

    StatusItemController *controller = nullptr;
    bool bypassed = false;
};

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    if (QApplication::arguments().contains(QStringLiteral("dark"))) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::white);
        palette.setColor(QPalette::Window, QColor(40, 40, 40));
        palette.setColor(QPalette::Base, QColor(30, 30, 30));
        palette.setColor(QPalette::Text, Qt::white);
        palette.setColor(QPalette::ButtonText, Qt::white);
        palette.setColor(QPalette::Button, QColor(50, 50, 50));
        QApplication::setPalette(palette);
    }
    QApplication::setQuitOnLastWindowClosed(false);
    static ScriptedPlatform place; // outlives the services, which are the process's
    place.install();
    SessionBus bus;
    DesktopStatusBar statusBar(bus);
    say(QStringLiteral("panel at once: %1").arg(statusBar.hasHost()));
    Platform desktop = platform();
    desktop.statusBar = &statusBar;
    installPlatform(desktop);
    UserDefaults &settings = UserDefaults::standard();
    settings.registerDefaults({{QStringLiteral("Enabled"), true}});
    ShortcutMonitor::registerDefaultForName(QStringLiteral("RevealShortcut"), 32,
                                            kFlagControl | kFlagOption | kFlagCommand, true);
    TouchBarInterceptor::subscribeToUserDefaults();
    registerShortcutControls();
    registerMenuBarClasses();
    Delegate delegate;
    place.lifecycle.setDelegate(&delegate);
    const TopLevelObjects objects = StatusItemController::loadFromNib(&delegate);
    if (!delegate.controller) {
        return 1;
    }
    delegate.controller->setFrontmostApp(
        RunningApplication{.bundleIdentifier = QStringLiteral("Text & Pictures"), .bundlePath = {}});
    QObject::connect(delegate.controller->statusItemMenu(), &QMenu::aboutToShow,
                     [] { RunLoop::main().performAsync([] { say(QStringLiteral("menu opened")); }); });
    QObject::connect(delegate.controller->statusItemMenu(), &QMenu::aboutToHide,
                     [] { say(QStringLiteral("menu closed")); });
    QObject::connect(delegate.controller->toggleAppMenuItem(), &QAction::toggled, [](bool on) {
        say(QStringLiteral("Enabled is %1").arg(on ? QStringLiteral("yes") : QStringLiteral("no")));
    });
    say(QStringLiteral("ready"));
    return QApplication::exec();
}

#include "statusprobe.moc"
