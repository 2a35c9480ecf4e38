#pragma once

#include "preferences/PreferencesTab.h"

#include <QMenu>

namespace barquell {

/// The permission, the reset of everything, and a look behind the scenes. Reached by its key alone.
class PreferencesTabExpert final : public PreferencesTab {
    Q_OBJECT
    Q_PROPERTY(QMenu *menu READ menu WRITE setMenu)
    Q_PROPERTY(QWidget *privacyButton READ privacyButton WRITE setPrivacyButton)

public:
    using PreferencesTab::PreferencesTab;

    void viewDidLoad() override;

    Q_INVOKABLE void showAuthorizationWindow(const QVariant &sender);
    Q_INVOKABLE void showAccessibilityPrivacyPreferences(const QVariant &sender);

    /// After a question: everything that was ever set goes.
    Q_INVOKABLE void resetSettings(const QVariant &sender);

    /// Opens the menu beneath the sender, a widget.
    Q_INVOKABLE void revealMenu(const QVariant &sender);

    /// The menu's items.
    Q_INVOKABLE void revealSettingsFile(const QVariant &sender);
    Q_INVOKABLE void revealLog(const QVariant &sender);
    Q_INVOKABLE void revealReport(const QVariant &sender);

    /// Off where this place has no such thing.
    Q_INVOKABLE bool validateMenuItem(QObject *item) const;

    QMenu *menu() const { return _menu; }
    void setMenu(QMenu *menu) { _menu = menu; }
    QWidget *privacyButton() const { return _privacyButton; }
    void setPrivacyButton(QWidget *button) { _privacyButton = button; }

private:
    QPointer<QMenu> _menu;
    QPointer<QWidget> _privacyButton; ///< hidden where it would open the same window as the one above it
};

} // namespace barquell
