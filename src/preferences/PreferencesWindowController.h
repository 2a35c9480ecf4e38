#pragma once

#include "foundation/interface/InterfaceFile.h"
#include "observing/KeyValueObserver.h"
#include "preferences/PreferencesTab.h"
#include "preferences/PreferencesWindow.h"
#include "preferences/WindowDelegate.h"

#include <QHash>

#include <memory>

namespace barquell {

struct KeyEvent;

/// Shows one tab of the preferences at a time, and remembers which. There is one such controller while the
/// window is open; it goes with the window, its tabs and their views. Main thread only.
class PreferencesWindowController final : public KeyValueObserver, public WindowDelegate {
    Q_OBJECT
    Q_PROPERTY(barquell::PreferencesWindow *window READ window WRITE setWindow)
    Q_PROPERTY(barquell::PreferencesTab *firstTab READ firstTab WRITE setFirstTab)
    Q_PROPERTY(barquell::PreferencesTab *defaultTab READ defaultTab WRITE setDefaultTab)
    Q_PROPERTY(barquell::PreferencesTab *expertTab READ expertTab WRITE setExpertTab)

public:
    /// What others use: the class, which speaks for the shared controller where there is one.
    class Class {
    public:
        PreferencesWindow *window() const;

        /// Whether the window is open on that tab.
        PreferencesWindow *windowIfTabPresented(const QString &identifier) const;

        /// Makes the shared controller where there is none; nothing where its interface file fails. Without
        /// an identifier, or with an unknown one, the current tab stays.
        void showWindow(QObject *sender) const;
        void showWindow(QObject *sender, const QString &tabIdentifier) const;

        void closeWindow(QObject *sender) const;
    };
    static const Class &cls();

    /// Loads the window and walks its chain of tabs; nullptr where the file cannot be loaded.
    static std::unique_ptr<PreferencesWindowController>
    create(const QString &interfaceFile = QStringLiteral("PreferencesWindow"));

    void showWindow(QObject *sender);
    void showWindow(QObject *sender, const QString &tabIdentifier);

    /// False where the tab is unknown or current already.
    bool setCurrentTabIdentifier(const QString &identifier);
    bool setCurrentTab(PreferencesTab *tab);

    /// Lays the window out for the current tab, animated where it is visible. Without activation a hidden
    /// window stays as it is; with it the window comes to the front last.
    void presentCurrentTabActivateWindow(bool activate);

    void preferencesTabDidChangeView(PreferencesTab *tab);

    /// Also shows a tab that is not in the chain.
    void preferencesTabWantsToAppear(PreferencesTab *tab);

    /// Sent by the toolbar's items.
    Q_INVOKABLE void selectTab(const QVariant &sender);

    /// The window where it is visible on that tab of the chain.
    PreferencesWindow *windowIfTabPresented(const QString &identifier) const;

    /// False where nobody has used the key.
    bool handleKeyDown(const KeyEvent &event);

    void windowDidResize() override;
    bool windowShouldClose() override { return true; }
    void windowWillClose() override;

    PreferencesWindow *window() const { return _window; }
    PreferencesTab *currentTab() const { return _currentTab; }
    PreferencesTab *firstTab() const { return _firstTab; }
    PreferencesTab *defaultTab() const { return _defaultTab; }
    PreferencesTab *expertTab() const { return _expertTab; }
    void setWindow(PreferencesWindow *window) { _window = window; }
    void setFirstTab(PreferencesTab *tab) { _firstTab = tab; }
    void setDefaultTab(PreferencesTab *tab) { _defaultTab = tab; }
    void setExpertTab(PreferencesTab *tab) { _expertTab = tab; }

    const QHash<QString, QPointer<PreferencesTab>> &tabs() const { return _tabs; }
    const QHash<QString, QString> &keyEquivalentTargets() const { return _keyEquivalentTargets; }

private:
    PreferencesWindowController() = default;

    void adoptTabs();
    void chooseFirstCurrentTab();
    void restoreSize(QWidget &view, const ResizeConfiguration &configuration) const;
    void finishPresentation(const ResizeConfiguration &configuration, const QSizeF &frameSize, bool activate);
    QString sizeKey() const;
    bool handleTabKey(const QString &identifier, bool isARepeat);
    bool handleExpertKey(bool isARepeat);

    TopLevelObjects _topLevelObjects;
    QHash<QString, QPointer<PreferencesTab>> _tabs;
    QHash<QString, QString> _keyEquivalentTargets; ///< "1" … "9" to identifiers
    QPointer<PreferencesWindow> _window;
    QPointer<PreferencesTab> _currentTab;
    QPointer<PreferencesTab> _firstTab;
    QPointer<PreferencesTab> _defaultTab;
    QPointer<PreferencesTab> _expertTab;
};

} // namespace barquell
