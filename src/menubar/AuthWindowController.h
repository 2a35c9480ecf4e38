#pragma once

#include "blocking/TrustedProcessChecker.h"
#include "foundation/interface/InterfaceFile.h"
#include "preferences/ContentWindow.h"
#include "preferences/WindowDelegate.h"

#include <QPointer>

#include <memory>

namespace barquell {

/// Leads the user to the permission: one page asks for it, the other stands there once the process is
/// trusted, and the window turns to the right one whenever trust changes. There is one such controller while
/// the window is open. Main thread only.
class AuthWindowController final : public QObject, public TrustedProcessObserver, public WindowDelegate {
    Q_OBJECT
    Q_PROPERTY(barquell::ContentWindow *window READ window WRITE setWindow)
    Q_PROPERTY(
        QWidget *authorizationRequiredView READ authorizationRequiredView WRITE setAuthorizationRequiredView)
    Q_PROPERTY(
        QWidget *authorizationCompleteView READ authorizationCompleteView WRITE setAuthorizationCompleteView)
    Q_PROPERTY(QWidget *privacyButton READ privacyButton WRITE setPrivacyButton)
    Q_PROPERTY(QWidget *completePrivacyButton READ completePrivacyButton WRITE setCompletePrivacyButton)

public:
    /// What others use: the class.
    class Class {
    public:
        /// Made where there is none.
        AuthWindowController &singleton() const;
        ContentWindow *window() const;
        void showWindow(QObject *sender) const;
    };
    static const Class &cls();

    AuthWindowController();
    ~AuthWindowController() override;
    Q_DISABLE_COPY_MOVE(AuthWindowController)

    void showWindow(QObject *sender);
    void processTrustedStateDidChange(bool trusted) override;

    /// Animated where another page was visible before; the window keeps its middle.
    void setPresentedView(QWidget *view);

    Q_INVOKABLE void startAuthorization(const QVariant &sender);
    Q_INVOKABLE void showAccessibilityPrivacyPreferences(const QVariant &sender);
    Q_INVOKABLE void showPreferences(const QVariant &sender);
    Q_INVOKABLE void closeWindow(const QVariant &sender);

    void windowWillClose() override;

    ContentWindow *window() const { return _window; }
    QWidget *authorizationRequiredView() const { return _authorizationRequiredView; }
    QWidget *authorizationCompleteView() const { return _authorizationCompleteView; }
    QWidget *privacyButton() const { return _privacyButton; }
    QWidget *completePrivacyButton() const { return _completePrivacyButton; }
    void setWindow(ContentWindow *window) { _window = window; }
    void setAuthorizationRequiredView(QWidget *view) { _authorizationRequiredView = view; }
    void setAuthorizationCompleteView(QWidget *view) { _authorizationCompleteView = view; }
    void setPrivacyButton(QWidget *button) { _privacyButton = button; }
    void setCompletePrivacyButton(QWidget *button) { _completePrivacyButton = button; }

private:
    TopLevelObjects _topLevelObjects;
    QPointer<ContentWindow> _window;
    QPointer<QWidget> _authorizationRequiredView;
    QPointer<QWidget> _authorizationCompleteView;
    QPointer<QWidget> _privacyButton; ///< hidden where there is nothing that it could open
    QPointer<QWidget> _completePrivacyButton;
};

} // namespace barquell
