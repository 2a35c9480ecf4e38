#include "menubar/AuthWindowController.h"

#include "blocking/TouchBarInterceptor.h"
#include "foundation/Bundle.h"
#include "platform/AccessibilityTrust.h"
#include "platform/Platform.h"
#include "preferences/ContainerView.h"
#include "preferences/FittingSize.h"
#include "preferences/PreferencesWindowController.h"
#include "preferences/SharedController.h"
#include "preferences/WindowFrame.h"
#include "process/AppHelpers.h"
#include "process/Helpers.h"

#include <QPushButton>

namespace barquell {

namespace {

using Shared = SharedController<AuthWindowController>;

/// Only a dialog would give Return to it from anywhere.
void focusDefaultButton(const QWidget *page) {
    for (QPushButton *button : page ? page->findChildren<QPushButton *>() : QList<QPushButton *>()) {
        if (button->isDefault()) {
            button->setFocus();
        }
    }
}

} // namespace

const AuthWindowController::Class &AuthWindowController::cls() {
    static const Class instance;
    return instance;
}

AuthWindowController &AuthWindowController::Class::singleton() const {
    if (!Shared::get()) {
        Shared::set(std::make_unique<AuthWindowController>());
    }
    return *Shared::get();
}

ContentWindow *AuthWindowController::Class::window() const {
    return singleton().window();
}

void AuthWindowController::Class::showWindow(QObject *sender) const {
    singleton().showWindow(sender);
}

AuthWindowController::AuthWindowController() {
    Helpers::loadNibNamed(QStringLiteral("AuthWindow"), this, &_topLevelObjects);
    if (_window) {
        _window->setMovableByWindowBackground(true);
    }
    for (QWidget *button : {_privacyButton.data(), _completePrivacyButton.data()}) {
        if (button) {
            button->setVisible(platform().accessibilityTrust->hasPrivacyPage());
        }
    }
    for (QWidget *page : {_authorizationRequiredView.data(), _authorizationCompleteView.data()}) {
        if (page) {
            growToContents(*page);
        }
    }
}

AuthWindowController::~AuthWindowController() {
    TrustedProcessChecker::removeObserver(this);
}

void AuthWindowController::showWindow(QObject * /*sender*/) {
    TrustedProcessChecker::addObserver(this, true);
    AppHelpers::showForegroundWindow(_window);
}

void AuthWindowController::processTrustedStateDidChange(bool trusted) {
    if (_window) {
        _window->setWindowTitle(Bundle::localizedString(trusted ? QStringLiteral("Authorization Complete")
                                                                : QStringLiteral("Authorization Required")));
    }
    setPresentedView(trusted ? _authorizationCompleteView : _authorizationRequiredView);
}

void AuthWindowController::setPresentedView(QWidget *view) {
    ContainerView *container = _window ? _window->contentView() : nullptr;
    if (!container || container->contentView() == view) {
        return;
    }
    const bool animate = container->contentView() && _window->isVisible();
    container->setContentLayoutMode(ContainerLayoutTop);
    container->setContentView(view);
    focusDefaultButton(view);
    const QSizeF content = view ? QSizeF(view->size()) : QSizeF(0, 0);
    const QSizeF size = _window->frameRectForContentRect(QRectF(QPointF(), content)).size();
    const QRectF current = _window->frame();
    if (size != current.size()) {
        _window->setFrame(resizedAboutCenter(current, size), animate);
    }
}

void AuthWindowController::startAuthorization(const QVariant & /*sender*/) {
    TouchBarInterceptor::requestAuthorization();
}

void AuthWindowController::showAccessibilityPrivacyPreferences(const QVariant & /*sender*/) {
    Helpers::openAccessibilityPrivacyPreferences();
}

void AuthWindowController::showPreferences(const QVariant &sender) {
    PreferencesWindowController::cls().showWindow(sender.value<QObject *>());
    closeWindow(sender);
}

void AuthWindowController::closeWindow(const QVariant & /*sender*/) {
    if (_window) {
        _window->close();
    }
}

void AuthWindowController::windowWillClose() {
    TrustedProcessChecker::removeObserver(this);
    Shared::letGo(this);
}

} // namespace barquell
