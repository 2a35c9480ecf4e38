#pragma once

#include "foundation/interface/InterfaceFile.h"
#include "observing/KeyValueObserver.h"
#include "preferences/ResizeConfiguration.h"

#include <QPointer>
#include <QWidget>

#include <cstdint>
#include <memory>

namespace barquell {

class PreferencesWindowController;
struct KeyEvent;

/// One tab of the preferences: a link of the chain in the toolbar, or one that another tab opens. Subclasses
/// are named PreferencesTab and their identifier; their view is in the interface file of that name, whose
/// owner is the tab. Main thread only.
class PreferencesTab : public KeyValueObserver {
    Q_OBJECT
    Q_PROPERTY(QString identifier READ identifier WRITE setIdentifier)
    Q_PROPERTY(QWidget *view READ view WRITE setView)
    Q_PROPERTY(barquell::PreferencesTab *nextTab READ nextTab WRITE setNextTab)

public:
    using KeyValueObserver::KeyValueObserver;
    ~PreferencesTab() override;
    Q_DISABLE_COPY_MOVE(PreferencesTab)

    /// Of the class's name, unless one was set. Throws std::logic_error where neither gives one.
    QString identifier() const;
    void setIdentifier(const QString &identifier) { _identifier = identifier; }

    /// Of the toolbar item that is highlighted while the tab is shown.
    virtual QString selectedIdentifier() const { return identifier(); }

    /// Loaded when first asked for; empty where that fails. The tab's, wherever it is shown.
    QWidget *view();
    void setView(QWidget *view) { _view = view; }

    /// The view has just been put into the window.
    virtual void viewWillAppear() {}

    /// The view has been loaded, or is an empty one.
    virtual void viewDidLoad() {}

    virtual ResizeConfiguration resizeConfiguration() const { return {}; }

    /// A key that means nothing to the window; true where the tab has used it.
    virtual bool handleWindowKeyDown(const KeyEvent &event);

    /// Exactly that key with exactly these of Shift, Control, Option and Command.
    static bool matchKeyDown(const KeyEvent &event, std::uint64_t flags, std::uint16_t keyCode);

    PreferencesWindowController *owner() const;
    void setOwner(PreferencesWindowController *owner);

    PreferencesTab *nextTab() const { return _nextTab; }
    void setNextTab(PreferencesTab *tab) { _nextTab = tab; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void loadView();

    QPointer<QObject> _owner;
    QString _identifier;
    QPointer<PreferencesTab> _nextTab; // kept, as this one is, by the interface file that made both
    TopLevelObjects _topLevelObjects;
    std::unique_ptr<QWidget> _emptyView;
    QPointer<QWidget> _view;
    bool _isViewLoaded = false;
};

} // namespace barquell
