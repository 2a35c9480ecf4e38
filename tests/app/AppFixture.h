#pragma once

#include "app/Application.h"
#include "app/Entry.h"
#include "app/InterfaceRooms.h"
#include "applist/AppList.h"
#include "blocking/TouchBarInterceptor.h"
#include "foundation/UserDefaults.h"
#include "menubar/AuthWindowController.h"
#include "preferences/PreferencesWindowController.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

/// The whole program above the seam, on a scripted place and a virtual clock; each test runs in a process of
/// its own.
class AppFixture : public testing::Test {
protected:
    AppFixture() {
        here.loop.runPending();
        here.platform.workspace.copies.insert(ours(), 1);
        registerInterfaceClasses();
    }

    static QString ours() { return QStringLiteral("com.vexolith.barquell"); }
    static RunningApplication running(const QString &identifier) { return {identifier, QString(), 1}; }

    /// As the program entry does; then all that the launch queues happens.
    void launch() {
        prepareSettings();
        application.load();
        ASSERT_NE(application.delegate(), nullptr);
        here.platform.lifecycle.delegate()->applicationDidFinishLaunching();
        here.loop.runPending();
    }

    /// Started and quiet, with nothing on the screen.
    void launchSilently() {
        set("SilentStart", true);
        launch();
    }

    AppController &controller() { return *application.delegate(); }

    void bringToFront(const QString &identifier) {
        here.platform.workspace.bringToFront(running(identifier));
        here.loop.runPending();
    }

    void post(const char *name) {
        here.platform.notifications.post(QString::fromLatin1(name));
        here.loop.runPending();
    }

    bool touchPasses() {
        ScriptedEvent event(EventType::Gesture);
        event.touch(kTouchBegan);
        return here.platform.taps.deliver(event);
    }

    static void set(const char *key, const QVariant &value) {
        UserDefaults::standard().setObject(value, QString::fromLatin1(key));
    }

    static QVariant stored(const char *key) {
        return UserDefaults::standard().persistentDomain().value(QString::fromLatin1(key));
    }

    static QWidget *preferences() { return PreferencesWindowController::cls().window(); }

    static bool preferencesAreShown() { return preferences() && preferences()->isVisible(); }

    static bool authorizationIsShown() {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->isVisible() && window->metaObject() == &ContentWindow::staticMetaObject;
        });
    }

    Place &here = place();
    LogCapture log;
    Application application;
};

} // namespace barquell::test
