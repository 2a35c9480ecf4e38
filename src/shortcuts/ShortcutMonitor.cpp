#include "shortcuts/ShortcutMonitor.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"
#include "foundation/Values.h"
#include "platform/Platform.h"

#include <QMap>

#include <algorithm>
#include <array>
#include <limits>

namespace barquell {

namespace {

constexpr std::uint32_t kHotKeySignature = 0x76787363; // "vxsc"
constexpr ModifierFlags kFlagCapsLock = 0x10000;       // kCGEventFlagMaskAlphaShift

/// What the class holds. Never destroyed: its monitors use the platform and the settings to their end.
struct Shared {
    QMap<QString, ShortcutMonitor *> registry;
    std::vector<ShortcutMonitor *> registeredMonitors; // each takes itself out
    std::uint32_t lastMonitorID = 0;
    bool enabled = true;
    bool handlerInstalled = false;
};

Shared &shared() {
    static auto *const state = std::make_unique<Shared>().release();
    return *state;
}

QString enabledKey(const QString &name) {
    return name + QStringLiteral("Enabled");
}

HotKeyModifiers hotKeyModifiers(ModifierFlags flags) {
    struct Pair {
        ModifierFlags flag;
        HotKeyModifiers modifier;
    };
    static constexpr std::array kPairs{Pair{kFlagCommand, kHotKeyCommand}, Pair{kFlagShift, kHotKeyShift},
                                       Pair{kFlagCapsLock, kHotKeyAlphaLock},
                                       Pair{kFlagOption, kHotKeyOption}, Pair{kFlagControl, kHotKeyControl}};
    HotKeyModifiers modifiers = 0;
    for (const Pair &pair : kPairs) {
        modifiers |= (flags & pair.flag) != 0 ? pair.modifier : 0;
    }
    return modifiers;
}

void logFailure(const char *call, HotKeyStatus status) {
    log(QStringLiteral("%1 failed: %2").arg(QLatin1String(call)).arg(status));
}

} // namespace

ShortcutMonitor::ShortcutMonitor(QString name)
    : _monitorID(++shared().lastMonitorID), _name(std::move(name)) {
    subscribeToUserDefaultsKeyPath(enabledKey(_name), "observeEnabled:", true);
    subscribeToUserDefaultsKeyPath(_name, "observeShortcut:", true);
}

ShortcutMonitor::~ShortcutMonitor() {
    std::erase(shared().registeredMonitors, this);
    unregisterHotKey();
}

ShortcutMonitor *ShortcutMonitor::monitorWithName(const QString &name) {
    if (name.isNull()) {
        return nullptr;
    }
    if (ShortcutMonitor *existing = existingMonitorWithName(name)) {
        return existing;
    }
    auto monitor = std::make_unique<ShortcutMonitor>(name);
    return *shared().registry.insert(name, monitor.release());
}

ShortcutMonitor *ShortcutMonitor::existingMonitorWithName(const QString &name) {
    return shared().registry.value(name);
}

bool ShortcutMonitor::Class::enabled() const {
    return shared().enabled;
}

void ShortcutMonitor::setEnabled(bool enabled) {
    if (enabled == shared().enabled) {
        return;
    }
    shared().enabled = enabled;
    for (ShortcutMonitor *monitor : shared().registry) {
        monitor->updateRegistration();
    }
}

void ShortcutMonitor::registerDefaultForName(const QString &name, std::uint64_t keyCode,
                                             ModifierFlags modifierFlags, bool enabled) {
    QVariantMap defaults;
    if (keyCode != 0) {
        defaults.insert(name, Shortcut::storageRepresentation(keyCode, modifierFlags));
    }
    if (enabled) {
        defaults.insert(enabledKey(name), true);
    }
    if (!defaults.isEmpty()) {
        UserDefaults::standard().registerDefaults(defaults);
    }
}

void ShortcutMonitor::setShortcut(const std::optional<Shortcut> &shortcut) {
    if (_name.isNull()) {
        return;
    }
    setUserDefaultsValue(
        shortcut ? shortcut->storageRepresentation() : Shortcut::emptyStorageRepresentation(), _name);
    takeShortcut(shortcut ? std::optional(shortcut->copy()) : std::nullopt);
}

void ShortcutMonitor::setTarget(QObject *target, const Selector &action) {
    setTarget(target);
    setAction(action);
}

void ShortcutMonitor::setAction(const Selector &action) {
    if (action == _action) {
        return;
    }
    _action = action;
    updateRegistration();
}

bool ShortcutMonitor::addChangeListener(QObject *listener, bool init) {
    auto *const asListener = dynamic_cast<ShortcutMonitorListener *>(listener);
    if (!asListener) {
        return false;
    }
    removeChangeListener(listener);
    _changeListeners.emplace_back(listener);
    if (init) {
        asListener->shortcutMonitorDidChange(this);
    }
    return true;
}

void ShortcutMonitor::removeChangeListener(QObject *listener) {
    std::erase_if(_changeListeners, [listener](const auto &each) { return !each || each == listener; });
}

void ShortcutMonitor::observeEnabled(const QVariant &value) {
    const bool enabled = boolValue(value);
    if (enabled == _enabled) {
        return;
    }
    _enabled = enabled;
    updateRegistration();
    notifyChangeListeners();
}

void ShortcutMonitor::observeShortcut(const QVariant &value) {
    takeShortcut(Shortcut::shortcutFromStorageRepresentation(value));
}

void ShortcutMonitor::takeShortcut(const std::optional<Shortcut> &shortcut) {
    unregisterHotKey();
    _shortcut = shortcut;
    updateRegistration();
    notifyChangeListeners();
}

void ShortcutMonitor::updateRegistration() {
    if (!shared().enabled || !_shortcut || !_enabled || _action.isNull()) {
        std::erase(shared().registeredMonitors, this);
        unregisterHotKey();
        return;
    }
    HotKeys *const hotKeys = platform().hotKeys;
    if (!_eventHotKeyRef && hotKeys && installHotKeyEventHandler(*hotKeys)) {
        registerHotKey(*hotKeys);
    }
}

bool ShortcutMonitor::installHotKeyEventHandler(HotKeys &hotKeys) {
    if (!shared().handlerInstalled) {
        const HotKeyStatus status = hotKeys.installHandler(handleHotKey);
        if (status != kHotKeySuccess) {
            logFailure("InstallEventHandler", status);
            return false;
        }
        shared().handlerInstalled = true;
    }
    return true;
}

void ShortcutMonitor::registerHotKey(HotKeys &hotKeys) {
    // A number that no key can have must not become another key's.
    constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
    const auto keyCode = static_cast<std::uint32_t>(std::min(_shortcut->keyCode(), kMost));
    HotKeys::Registration registration = hotKeys.registerHotKey(
        keyCode, hotKeyModifiers(_shortcut->modifierFlags()), {kHotKeySignature, _monitorID},
        /*exclusive=*/true);
    if (registration.status != kHotKeySuccess) {
        logFailure("RegisterEventHotKey", registration.status);
        return;
    }
    _eventHotKeyRef = std::move(registration.hotKey);
    std::erase(shared().registeredMonitors, this);
    shared().registeredMonitors.push_back(this);
}

void ShortcutMonitor::unregisterHotKey() {
    if (const auto hotKey = std::move(_eventHotKeyRef)) {
        const HotKeyStatus status = hotKey->unregister();
        if (status != kHotKeySuccess) {
            logFailure("UnregisterEventHotKey", status);
        }
    }
}

void ShortcutMonitor::notifyChangeListeners() {
    const auto listeners = _changeListeners; // one may add or remove others
    for (const QPointer<QObject> &each : listeners) {
        if (auto *listener = dynamic_cast<ShortcutMonitorListener *>(each.data())) {
            listener->shortcutMonitorDidChange(this);
        }
    }
}

bool ShortcutMonitor::handleHotKey(HotKeyId id) {
    if (id.signature != kHotKeySignature) {
        return false;
    }
    for (ShortcutMonitor *monitor : shared().registeredMonitors) {
        if (monitor->_monitorID == id.number) {
            monitor->sendAction();
        }
    }
    return true;
}

void ShortcutMonitor::sendAction() {
    RunLoop::main().performAsync([target = _target, action = _action, sender = QPointer<QObject>(this)] {
        if (!target) {
            return;
        }
        const QMetaMethod method = action.resolvedOn(*target);
        if (!method.isValid()) {
            log(QStringLiteral("Receiver does not respond to selector: %1").arg(action.name()));
            return;
        }
        invoke(method, *target, QVariant::fromValue(sender.data()), false, {});
    });
}

} // namespace barquell
