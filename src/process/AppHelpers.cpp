#include "process/AppHelpers.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "platform/AppLifecycle.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "process/Helpers.h"
#include "process/Windows.h"

#include <QList>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <utility>

namespace barquell {

using namespace std::chrono_literals;

namespace {

constexpr auto kGraceInForeground = 100ms;

struct State {
    QList<QPointer<QWidget>> foregroundWindows;
    bool background = false;
    bool optionalDockIcon = false;
};

State &state() {
    static State instance;
    return instance;
}

AppLifecycle &application() {
    return *platform().appLifecycle;
}

void comeToForeground(std::function<void()> completion) {
    const auto activate = [completion = std::move(completion)] {
        application().activate();
        if (completion) {
            completion();
        }
    };
    if (!state().background) {
        activate();
        return;
    }
    state().background = false;
    RunLoop::main().performAsync([activate] {
        if (state().background) {
            return;
        }
        application().bringFirstProcessToFront();
        application().setActivationPolicy(ActivationPolicy::Regular);
        activate();
    });
}

void scheduleBackground() {
    if (std::exchange(state().background, true)) {
        return;
    }
    RunLoop::main().performAfter(kGraceInForeground, [] {
        if (state().background) {
            application().setActivationPolicy(ActivationPolicy::Accessory);
        }
    });
}

void leaveForegroundIfNothingNeedsIt() {
    state().foregroundWindows.removeIf([](const QPointer<QWidget> &window) { return !window; });
    if (state().optionalDockIcon && state().foregroundWindows.isEmpty()) {
        scheduleBackground();
    }
}

void windowWillClose(const Notification &notification) {
    state().foregroundWindows.removeIf(
        [&](const QPointer<QWidget> &window) { return window == notification.object; });
    leaveForegroundIfNothingNeedsIt();
}

void changeLaunchAtStart(const QVariant &value) {
    Helpers::setLoginItemEnabled(boolValue(value));
}

void changeOptionalDockIcon(const QVariant &value) {
    const bool optional = boolValue(value);
    if (optional == std::exchange(state().optionalDockIcon, optional)) {
        return;
    }
    if (!optional) {
        comeToForeground({});
    } else {
        leaveForegroundIfNothingNeedsIt();
    }
}

/// The setting says what the system does, whoever changed that since the last run.
void adoptLoginItemState(UserDefaults &defaults) {
    const LoginItemState known =
        platform().loginItem ? platform().loginItem->state(Helpers::loginHelper()) : LoginItemState{};
    const QString key = QStringLiteral("LaunchAtStart");
    if (known.kind == LoginItemState::Kind::Off) {
        defaults.setObject(false, key);
    } else if (known.kind == LoginItemState::Kind::Found && known.value) {
        defaults.setObject(*known.value, key);
    }
}

} // namespace

QString foregroundWindowNotification() {
    return QStringLiteral("com.vexolith.barquell.foreground-window");
}

AppHelpers &AppHelpers::cls() {
    static AppHelpers instance;
    return instance;
}

void AppHelpers::initialize() {
    static bool initialized = false;
    if (std::exchange(initialized, true)) {
        return;
    }
    const QString dockIcon = QStringLiteral("OptionalDockIcon");
    UserDefaults &defaults = UserDefaults::standard();
    defaults.registerDefaults({{dockIcon, true}});
    state().background = application().activationPolicy() != ActivationPolicy::Regular;
    static QObject observer;
    NotificationCenter::defaultCenter().addObserver(observer, windowWillCloseNotification(), windowWillClose);
    announceClosingWindows();
    adoptLoginItemState(defaults); // before anything observes it: the system is not told what it said
    defaults.addObserver(cls(), QStringLiteral("LaunchAtStart"), changeLaunchAtStart);
    defaults.addObserver(cls(), dockIcon, changeOptionalDockIcon);
    changeOptionalDockIcon(defaults.objectForKey(dockIcon));
}

void AppHelpers::observeValueForKeyPath(const QString & /*keyPath*/, Observable * /*object*/,
                                        const QVariant &newValue, const ObservingContext &context) {
    if (const auto *function = std::get_if<ChangeFunction>(&context)) {
        (*function)(nilForNullObject(newValue));
    }
}

void AppHelpers::showForegroundWindow(QWidget *window) {
    initialize();
    if (!window) {
        log(QStringLiteral("Attempt to show nil window"));
        return;
    }
    QPointer<QWidget> shown(window);
    if (!state().foregroundWindows.contains(shown)) {
        state().foregroundWindows.append(shown);
    }
    NotificationCenter::defaultCenter().post({foregroundWindowNotification(), window, {}});
    comeToForeground([shown] {
        if (shown) {
            shown->setWindowState(shown->windowState() & ~Qt::WindowMinimized);
            shown->show();
            shown->raise();
            shown->activateWindow();
        }
    });
}

void AppHelpers::becomeForegroundProcessCompletionHandler(std::function<void()> completion) {
    initialize();
    comeToForeground(std::move(completion));
}

bool AppHelpers::canBecomeBackgroundProcess() {
    initialize();
    const auto &windows = state().foregroundWindows;
    return std::all_of(windows.begin(), windows.end(), [](const QPointer<QWidget> &window) {
        return !window || hasEnabledCloseButton(*window);
    });
}

void AppHelpers::becomeBackgroundProcess() {
    if (!canBecomeBackgroundProcess()) {
        return;
    }
    const auto windows = std::exchange(state().foregroundWindows, {});
    if (!windows.isEmpty()) {
        RunLoop::main().performAsync([windows] {
            for (const QPointer<QWidget> &window : windows) {
                if (window) {
                    window->close();
                }
            }
        });
    }
    scheduleBackground();
}

bool AppHelpers::isBackground() {
    initialize();
    return state().background;
}

} // namespace barquell
