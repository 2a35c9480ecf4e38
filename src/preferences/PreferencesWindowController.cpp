#include "preferences/PreferencesWindowController.h"

#include "foundation/Log.h"
#include "foundation/UserDefaults.h"
#include "platform/KeyEvents.h"
#include "preferences/ContainerView.h"
#include "preferences/SharedController.h"
#include "preferences/SizeString.h"
#include "preferences/WindowFrame.h"
#include "preferences/WindowKeys.h"
#include "process/AppHelpers.h"
#include "process/Helpers.h"

namespace barquell {

namespace {

using Shared = SharedController<PreferencesWindowController>;

constexpr int kTabsWithKeys = 9;
constexpr double kLeastUpperBound = 1.0;

QString tabIdentifierKey() {
    return QStringLiteral("PreferencesWindowTabIdentifier");
}

/// Numbers answer as text; what is neither is none.
QString storedString(const QString &key) {
    const QVariant value = UserDefaults::standard().objectForKey(key);
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::Double:
        return value.toString();
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    default:
        return {};
    }
}

double upperBound(double maximum) {
    return maximum < kLeastUpperBound ? std::numeric_limits<double>::max() : maximum;
}

} // namespace

const PreferencesWindowController::Class &PreferencesWindowController::cls() {
    static const Class instance;
    return instance;
}

PreferencesWindow *PreferencesWindowController::Class::window() const {
    return Shared::get() ? Shared::get()->window() : nullptr;
}

PreferencesWindow *PreferencesWindowController::Class::windowIfTabPresented(const QString &identifier) const {
    return Shared::get() ? Shared::get()->windowIfTabPresented(identifier) : nullptr;
}

void PreferencesWindowController::Class::showWindow(QObject *sender) const {
    showWindow(sender, {});
}

void PreferencesWindowController::Class::showWindow(QObject *sender, const QString &tabIdentifier) const {
    if (!Shared::get()) {
        Shared::set(create());
    }
    if (Shared::get()) {
        Shared::get()->showWindow(sender, tabIdentifier);
    }
}

void PreferencesWindowController::Class::closeWindow(QObject * /*sender*/) const {
    if (window()) {
        window()->close();
    }
}

std::unique_ptr<PreferencesWindowController>
PreferencesWindowController::create(const QString &interfaceFile) {
    std::unique_ptr<PreferencesWindowController> controller(new PreferencesWindowController);
    if (!Helpers::loadNibNamed(interfaceFile, controller.get(), &controller->_topLevelObjects)) {
        return nullptr;
    }
    controller->adoptTabs();
    controller->chooseFirstCurrentTab();
    return controller;
}

void PreferencesWindowController::adoptTabs() {
    int position = 0;
    for (PreferencesTab *tab = _firstTab; tab; tab = tab->nextTab()) {
        tab->setOwner(this);
        _tabs.insert(tab->identifier(), tab);
        if (++position <= kTabsWithKeys) {
            _keyEquivalentTargets.insert(QString::number(position), tab->identifier());
        }
    }
    if (_expertTab) {
        _expertTab->setOwner(this);
    }
}

void PreferencesWindowController::chooseFirstCurrentTab() {
    const QString remembered = storedString(tabIdentifierKey());
    _currentTab = _tabs.value(remembered);
    if (_currentTab) {
        return;
    }
    if (!remembered.isNull()) {
        log(QStringLiteral("Tab with identifier '%1' is not found")
                .arg(cleanLine(remembered, kLongestQuote)));
    }
    _currentTab = _defaultTab ? _defaultTab : _firstTab;
}

void PreferencesWindowController::showWindow(QObject * /*sender*/) {
    presentCurrentTabActivateWindow(true);
}

void PreferencesWindowController::showWindow(QObject * /*sender*/, const QString &tabIdentifier) {
    setCurrentTabIdentifier(tabIdentifier);
    presentCurrentTabActivateWindow(true);
}

bool PreferencesWindowController::setCurrentTabIdentifier(const QString &identifier) {
    return setCurrentTab(_tabs.value(identifier));
}

bool PreferencesWindowController::setCurrentTab(PreferencesTab *tab) {
    if (!tab || tab == _currentTab) {
        return false;
    }
    _currentTab = tab;
    UserDefaults::standard().setObject(tab->selectedIdentifier(), tabIdentifierKey());
    return true;
}

void PreferencesWindowController::presentCurrentTabActivateWindow(bool activate) {
    const bool visible = _window && _window->isVisible();
    if (!_currentTab || !_window || !(activate || visible)) {
        return;
    }
    _window->setSelectedItemIdentifier({}); // so that the selection is drawn again
    _window->setSelectedItemIdentifier(_currentTab->selectedIdentifier());

    QWidget *view = _currentTab->view();
    ContainerView *container = _window->contentView();
    if (!view || !container) {
        return;
    }
    const bool switching = container->contentView() != view;
    const ResizeConfiguration configuration = _currentTab->resizeConfiguration();
    if (configuration.isResizable() && switching) {
        restoreSize(*view, configuration);
    }
    _window->setResizable(configuration.isResizable());
    container->setContentView(view, ContainerLayoutTop);
    if (switching) {
        view->setFocus();
        _currentTab->viewWillAppear();
    }
    const QSizeF size = _window->frameRectForContentRect(QRectF(QPointF(), QSizeF(view->size()))).size();
    const bool animate =
        visible && UserDefaults::standard().boolForKey(QStringLiteral("AnimatedWindowSizing"));
    _window->setFrame(resizedAtTop(_window->frame(), size), animate, [this, configuration, size, activate] {
        finishPresentation(configuration, size, activate);
    });
}

void PreferencesWindowController::restoreSize(QWidget &view, const ResizeConfiguration &configuration) const {
    const QString stored = storedString(sizeKey());
    if (stored.isNull()) {
        return;
    }
    const QSize size = onDevice(QRectF(QPointF(), sizeFromString(stored))).size();
    view.resize(configuration.isWidthResizable() ? size.width() : view.width(),
                configuration.isHeightResizable() ? size.height() : view.height());
}

void PreferencesWindowController::finishPresentation(const ResizeConfiguration &configuration,
                                                     const QSizeF &frameSize, bool activate) {
    if (configuration.isResizable()) {
        _window->contentView()->setContentLayoutMode(ContainerLayoutFill);
        QSizeF least = frameSize; // of the frame, also where its title and toolbar make it the larger one
        QSizeF most = frameSize;
        if (configuration.isWidthResizable()) {
            least.setWidth(configuration.minimumWidth);
            most.setWidth(upperBound(configuration.maximumWidth));
        }
        if (configuration.isHeightResizable()) {
            least.setHeight(configuration.minimumHeight);
            most.setHeight(upperBound(configuration.maximumHeight));
        }
        _window->setContentMinSize(least);
        _window->setContentMaxSize(most);
    }
    if (activate) {
        AppHelpers::showForegroundWindow(_window);
    }
}

QString PreferencesWindowController::sizeKey() const {
    return QStringLiteral("PreferencesWindowTabSize ") + _currentTab->identifier();
}

void PreferencesWindowController::preferencesTabDidChangeView(PreferencesTab *tab) {
    if (tab == _currentTab) {
        presentCurrentTabActivateWindow(false);
    }
}

void PreferencesWindowController::preferencesTabWantsToAppear(PreferencesTab *tab) {
    if (!setCurrentTab(tab)) {
        return;
    }
    if (tab->owner() != this) {
        tab->setOwner(this);
    }
    presentCurrentTabActivateWindow(false);
}

void PreferencesWindowController::selectTab(const QVariant &sender) {
    const auto *item = sender.value<QObject *>();
    if (item && setCurrentTabIdentifier(item->property("itemIdentifier").toString())) {
        presentCurrentTabActivateWindow(false);
    }
}

PreferencesWindow *PreferencesWindowController::windowIfTabPresented(const QString &identifier) const {
    PreferencesTab *tab = _tabs.value(identifier);
    return tab && tab == _currentTab && _window && _window->isVisible() ? _window : nullptr;
}

bool PreferencesWindowController::handleKeyDown(const KeyEvent &event) {
    const ModifierFlags flags = event.modifierFlags & kWindowKeyFlags;
    const QString &key = event.charactersIgnoringModifiers;
    if (flags == (kFlagOption | kFlagCommand) && _expertTab && key == QLatin1String("0")) {
        return handleExpertKey(event.isARepeat);
    }
    if (flags == kFlagCommand && _keyEquivalentTargets.contains(key)) {
        return handleTabKey(_keyEquivalentTargets.value(key), event.isARepeat);
    }
    return _currentTab && _currentTab->handleWindowKeyDown(event);
}

bool PreferencesWindowController::handleExpertKey(bool isARepeat) {
    if (!isARepeat) {
        _currentTab = _expertTab; // never remembered
        presentCurrentTabActivateWindow(false);
    }
    return true;
}

bool PreferencesWindowController::handleTabKey(const QString &identifier, bool isARepeat) {
    if (!isARepeat && setCurrentTabIdentifier(identifier)) {
        presentCurrentTabActivateWindow(false);
    }
    return true;
}

void PreferencesWindowController::windowDidResize() {
    if (!_window || !_currentTab || !_window->contentView() ||
        _window->contentView()->contentLayoutMode() != ContainerLayoutFill) {
        return;
    }
    const QWidget *view = _window->contentView()->contentView();
    UserDefaults::standard().setObject(stringFromSize(view ? QSizeF(view->size()) : QSizeF(0, 0)), sizeKey());
}

void PreferencesWindowController::windowWillClose() {
    Shared::letGo(this);
}

} // namespace barquell
