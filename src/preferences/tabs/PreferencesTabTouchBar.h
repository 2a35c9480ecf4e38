#pragma once

#include "preferences/PreferencesTab.h"
#include "preferences/tabs/PreferencesTabApps.h"

#include <QAbstractButton>

namespace barquell {

/// Blocking, pause keys, the display of changes, and the way to the apps without blocking.
class PreferencesTabTouchBar final : public PreferencesTab {
    Q_OBJECT
    Q_PROPERTY(barquell::PreferencesTabApps *appsTab READ appsTab WRITE setAppsTab)
    Q_PROPERTY(QAbstractButton *clearPauseKeysButton READ clearPauseKeysButton WRITE setClearPauseKeysButton)

public:
    using PreferencesTab::PreferencesTab;

    /// Hides what this place cannot do.
    void viewDidLoad() override;

    Q_INVOKABLE void showApps(const QVariant &sender);

    PreferencesTabApps *appsTab() const { return _appsTab; }
    void setAppsTab(PreferencesTabApps *tab) { _appsTab = tab; }
    QAbstractButton *clearPauseKeysButton() const { return _clearPauseKeysButton; }
    void setClearPauseKeysButton(QAbstractButton *button) { _clearPauseKeysButton = button; }

private:
    QPointer<PreferencesTabApps> _appsTab;
    QPointer<QAbstractButton> _clearPauseKeysButton;
};

} // namespace barquell
