#include "menubar/StatusItemController.h"

#include "blocking/TouchBarInterceptor.h"
#include "foundation/Bundle.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"
#include "foundation/interface/Image.h"
#include "platform/AppLifecycle.h"
#include "platform/Applications.h"
#include "platform/Platform.h"
#include "process/Helpers.h"
#include "shortcuts/ShortcutMonitor.h"

#include <QIcon>

namespace barquell {

namespace {

/// As the system shows it. Of ourselves it may know nothing, where we are not installed.
QString displayName(const RunningApplication &application) {
    const Applications *applications = platform().applications;
    QString name = applications ? applications->displayName(application.bundlePath) : QString();
    if (!name.isEmpty()) {
        return name;
    }
    return application.bundleIdentifier == Bundle::mainBundleIdentifier() ? Bundle::localizedName()
                                                                          : application.bundleIdentifier;
}

/// An ampersand in a menu's text would mark a mnemonic.
QString menuText(QString text) {
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

TopLevelObjects StatusItemController::loadFromNib(QObject *owner) {
    TopLevelObjects objects;
    Helpers::loadNibNamed(QStringLiteral("StatusItem"), owner, &objects);
    return objects;
}

StatusItemController::StatusItemController(QObject *parent) : KeyValueObserver(parent) {
    createStatusItem();
    NotificationCenter::defaultCenter().addObserver(
        *this, touchBarStateChangedNotification(),
        [this](const Notification &notification) { touchBatStateDidChange(notification); });
    _interceptorEnabled = TouchBarInterceptor::effectivelyEnabled();
    TrustedProcessChecker::addObserver(this, true);
}

StatusItemController::~StatusItemController() {
    endMenu();
    _statusItem.reset();
    NotificationCenter::defaultCenter().removeObserver(*this);
    TrustedProcessChecker::removeObserver(this);
}

void StatusItemController::createStatusItem() {
    _statusItem = platform().statusBar ? platform().statusBar->createItem() : nullptr;
    if (!_statusItem) {
        return;
    }
    _statusItem->setAutosaveName(QStringLiteral("MainItem"));
    _statusItem->setRemovalAllowed(true);
    _statusItem->setVisible(true);
    _statusItem->watchVisibility([this](bool visible) { statusItemVisibilityDidChange(visible); });
    _statusItemView.setEventDelegate(this);
    _statusItem->setClickHandler([this](const StatusItemClick &click) {
        return click.right ? _statusItemView.rightMouseDown(click) : _statusItemView.mouseDown(click);
    });
}

void StatusItemController::awakeFromNib() {
    if (_statusItem) {
        _statusItem->setMenu(_statusItemMenu);
    }
    if (_bypassAppMenuItem) {
        _bypassAppMenuItemTemplate = _bypassAppMenuItem->text();
    }
}

void StatusItemController::setFrontmostApp(const std::optional<RunningApplication> &application) {
    if (!_bypassAppMenuItem) {
        return;
    }
    _bypassAppMenuItem->setText(
        application ? menuText(Bundle::format(_bypassAppMenuItemTemplate, displayName(*application)))
                    : QString());
    _bypassAppMenuItem->setVisible(application.has_value());
}

void StatusItemController::setFrontmostAppBypassed(bool bypassed) {
    _frontmostAppBypassed = bypassed;
    if (_bypassAppMenuItem) {
        _bypassAppMenuItem->setChecked(bypassed);
    }
}

void StatusItemController::popupMenu() {
    if (_statusItem) {
        _statusItem->performClick();
    }
}

void StatusItemController::processTrustedStateDidChange(bool trusted) {
    if (!_statusItem) {
        return;
    }
    _statusItem->setImage(
        imageNamed(trusted ? QStringLiteral("StatusItemDefault") : QStringLiteral("StatusItemWarn")));
    _statusItem->setToolTip(trusted ? QString()
                                    : Bundle::localizedString(QStringLiteral("Authorization Required")));
    _statusItem->setOpacity(_interceptorEnabled ? 1.0 : 0.5);
}

void StatusItemController::touchBatStateDidChange(const Notification & /*notification*/) {
    _interceptorEnabled = TouchBarInterceptor::effectivelyEnabled();
    processTrustedStateDidChange(TrustedProcessChecker::isTrusted());
}

void StatusItemController::statusItemVisibilityDidChange(bool visible) {
    if (!visible) {
        UserDefaults::standard().setObject(false,
                                           QStringLiteral("ShowStatusItem")); // may end this controller
    }
}

bool StatusItemController::statusItemViewMouseDown(StatusItemView & /*view*/,
                                                   const StatusItemClick & /*click*/) {
    return false;
}

bool StatusItemController::statusItemViewRightMouseDown(StatusItemView & /*view*/,
                                                        const StatusItemClick & /*click*/) {
    AppLifecycleDelegate *delegate = platform().appLifecycle ? platform().appLifecycle->delegate() : nullptr;
    if (delegate) {
        delegate->applicationShouldHandleReopen(false);
    }
    return true;
}

void StatusItemController::terminate(const QVariant & /*sender*/) {
    // Not from within the menu, which goes away with the status item when the program ends.
    RunLoop::main().performAsync([] {
        if (platform().appLifecycle) {
            platform().appLifecycle->terminate();
        }
    });
}

void StatusItemController::menuWillOpen(QMenu * /*menu*/) {
    _menuIsOpen = true;
    setFrontmostAppBypassed(_frontmostAppBypassed); // Qt checks an item that is chosen, whatever comes of it
    ShortcutMonitor::setEnabled(false);
}

void StatusItemController::menuDidClose(QMenu * /*menu*/) {
    _menuIsOpen = false;
    ShortcutMonitor::setEnabled(true);
}

void StatusItemController::setStatusItemMenu(QMenu *menu) {
    endMenu();
    if (_statusItemMenu) {
        _statusItemMenu->disconnect(this);
    }
    _statusItemMenu = menu;
    if (menu) {
        _menuKeys = std::make_unique<MenuKeys>(*menu);
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { menuWillOpen(menu); });
        connect(menu, &QMenu::aboutToHide, this, [this, menu] { menuDidClose(menu); });
        connect(menu, &QObject::destroyed, this, [this] { // one that is torn down is not hidden first
            _statusItemMenu.clear();
            endMenu();
        });
    }
}

/// Shortcuts would stay off for ever after a menu whose end nobody hears of.
void StatusItemController::endMenu() {
    if (!_menuIsOpen) {
        return;
    }
    if (_statusItemMenu) {
        _statusItemMenu->hide();
    }
    if (_menuIsOpen) {
        menuDidClose(_statusItemMenu);
    }
}

} // namespace barquell
