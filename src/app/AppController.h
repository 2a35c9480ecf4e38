#pragma once

#include "foundation/interface/InterfaceFile.h"
#include "menubar/StatusItemController.h"
#include "menubar/hud/TouchBarHUDController.h"
#include "observing/KeyValueObserver.h"
#include "platform/AppLifecycle.h"
#include "platform/Workspace.h"

#include <QPointer>

namespace barquell {

/// The application's delegate, and the one place that ties its parts together: it wires them at launch,
/// pauses blocking while a bypassed application is in front or the screen shield is up, and carries the menu
/// actions. Without windows (no QApplication) it does all but show any. Main thread only.
class AppController final : public KeyValueObserver, public AppLifecycleDelegate {
    Q_OBJECT
    Q_PROPERTY(barquell::StatusItemController *statusItemController READ statusItemController WRITE
                   setStatusItemController)
    Q_PROPERTY(barquell::TouchBarHUDController *touchBarHUDController READ touchBarHUDController WRITE
                   setTouchBarHUDController)

public:
    explicit AppController(QObject *parent = nullptr);
    ~AppController() override;
    Q_DISABLE_COPY_MOVE(AppController)

    void applicationDidFinishLaunching() override;
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override;
    void applicationWillTerminate() override;

    void pauseInterceptor();
    void resumeInterceptor();

    /// These two flip "Active", which counts at the next start.
    void toggleTouchBarFromNotification(const QString &name);
    Q_INVOKABLE void handleToggleShortcut(const QVariant &sender);

    Q_INVOKABLE void handleBypassShortcut(const QVariant &sender);

    /// Opens the preferences; closes them where this application is in front with them.
    Q_INVOKABLE void handleRevealShortcut(const QVariant &sender);

    void frontmostAppDidChange();

    /// Pauses blocking where the frontmost application is in the bypass list, else ends that pause.
    void frontmostAppStateDidMaybeChange();

    Q_INVOKABLE void observeShowStatusItem(const QVariant &value);
    Q_INVOKABLE void observeShowHUD(const QVariant &value);

    /// Never disables an item, but hides two while they have nothing to offer.
    Q_INVOKABLE bool validateMenuItem(QObject *item);

    /// Puts the frontmost application into the bypass list or takes it out.
    Q_INVOKABLE void toggleFrontmostAppIgnore(const QVariant &sender);

    Q_INVOKABLE void showPreferencesWindow(const QVariant &sender);
    Q_INVOKABLE void showAuthorizationWindow(const QVariant &sender);
    Q_INVOKABLE void showInAppStore(const QVariant &sender);
    Q_INVOKABLE void rateInAppStore(const QVariant &sender);
    Q_INVOKABLE void likeTheApp(const QVariant &sender);
    Q_INVOKABLE void becomeBackgroundProcess(const QVariant &sender);
    Q_INVOKABLE void openAccessibilityPrivacyPreferences(const QVariant &sender);

    StatusItemController *statusItemController() const { return _statusItemController; }
    void setStatusItemController(StatusItemController *controller) { _statusItemController = controller; }
    TouchBarHUDController *touchBarHUDController() const { return _touchBarHUDController; }
    void setTouchBarHUDController(TouchBarHUDController *controller) { _touchBarHUDController = controller; }

Q_SIGNALS:
    /// Everything is wired; whatever happens now is heard.
    void launched();

private:
    void takeShortcuts();
    void followDistributedNotifications();
    void showFirstWindow(bool silent);

    std::optional<RunningApplication> _frontmostApp;
    QPointer<StatusItemController> _statusItemController;
    QPointer<TouchBarHUDController> _touchBarHUDController;
    TopLevelObjects _statusItemObjects;  ///< what the status item's file made; they live with it
    TopLevelObjects _touchBarHUDObjects; ///< likewise the HUD's
    std::vector<std::unique_ptr<Observation>> _observations;
};

} // namespace barquell
