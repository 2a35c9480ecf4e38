#pragma once

#include "foundation/Selector.h"
#include "observing/KeyValueObserver.h"
#include "platform/HotKeys.h"
#include "shortcuts/Shortcut.h"

#include <QPointer>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace barquell {

class ShortcutMonitor;

/// What an object implements that listens to a monitor.
class ShortcutMonitorListener {
public:
    virtual ~ShortcutMonitorListener() = default;

    /// The monitor's shortcut, or whether it is enabled, has changed.
    virtual void shortcutMonitorDidChange(ShortcutMonitor *monitor) = 0;

protected:
    ShortcutMonitorListener() = default;
    ShortcutMonitorListener(const ShortcutMonitorListener &) = default;
    ShortcutMonitorListener &operator=(const ShortcutMonitorListener &) = default;
};

/// One named system-wide shortcut. Its name is the key of the settings that holds its shortcut; the name
/// followed by "Enabled" is the key that switches it on. While both say so, an action is set and monitors are
/// enabled at all, it holds a hot key, and a press of it sends the action to the target later from the run
/// loop, with the monitor as the argument (a QObject * in the variant). Main thread only.
class ShortcutMonitor final : public KeyValueObserver {
    Q_OBJECT

public:
    /// Follows the two settings. Others get monitors from monitorWithName().
    explicit ShortcutMonitor(QString name);
    ~ShortcutMonitor() override;
    Q_DISABLE_COPY_MOVE(ShortcutMonitor)

    /// The process's monitor of that name, made on first request and kept for ever; nullptr for a null name.
    static ShortcutMonitor *monitorWithName(const QString &name);

    /// The same, but nullptr where none was made yet.
    static ShortcutMonitor *existingMonitorWithName(const QString &name);

    /// Whether any monitor may hold a hot key; listeners are not told. An instance has an answer of that name
    /// too, so the class's is on the object that stands for it.
    struct Class {
        bool enabled() const;
    };
    static Class cls() { return {}; }
    static void setEnabled(bool enabled);

    /// Registers default settings of a monitor. A key code of 0 stands for none, so the key that has this
    /// code (A) cannot be a default.
    static void registerDefaultForName(const QString &name, std::uint64_t keyCode,
                                       ModifierFlags modifierFlags, bool enabled);

    const QString &name() const { return _name; }
    bool enabled() const { return _enabled; }

    const std::optional<Shortcut> &shortcut() const { return _shortcut; }

    /// Stores it in the settings as well.
    void setShortcut(const std::optional<Shortcut> &shortcut);

    QObject *target() const { return _target; }
    const Selector &action() const { return _action; }

    /// The target is held weakly, and may be missing: a press is taken all the same then.
    void setTarget(QObject *target, const Selector &action);
    void setTarget(QObject *target) { _target = target; }
    void setAction(const Selector &action);

    /// Calls the listener after each change, with init also at once. It is held weakly, and is an object that
    /// is also a ShortcutMonitorListener. False without a listener.
    bool addChangeListener(QObject *listener, bool init);
    void removeChangeListener(QObject *listener);

    Q_INVOKABLE void observeEnabled(const QVariant &value);
    Q_INVOKABLE void observeShortcut(const QVariant &value);

private:
    static bool installHotKeyEventHandler(HotKeys &hotKeys);
    static bool handleHotKey(HotKeyId id);

    void takeShortcut(const std::optional<Shortcut> &shortcut);
    void updateRegistration();
    void registerHotKey(HotKeys &hotKeys);
    void unregisterHotKey();
    void notifyChangeListeners();
    void sendAction();

    std::uint32_t _monitorID;
    std::unique_ptr<HotKey> _eventHotKeyRef; // held while registered
    std::vector<QPointer<QObject>> _changeListeners;
    bool _enabled = false;
    const QString _name;
    std::optional<Shortcut> _shortcut;
    QPointer<QObject> _target;
    Selector _action;
};

} // namespace barquell
