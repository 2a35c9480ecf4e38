#pragma once

#include "platform/ModifierFlags.h"
#include "shortcuts/ShortcutMonitor.h"

#include <QAction>
#include <QString>

namespace barquell {

/// A menu item that shows a global shortcut beside its title, while that is switched on. It only shows it:
/// the hot key does the work. Main thread only.
class ShortcutMenuItem final : public QAction, public ShortcutMonitorListener {
    Q_OBJECT
    Q_PROPERTY(QString shortcutName READ shortcutName WRITE setShortcutName)

public:
    explicit ShortcutMenuItem(QObject *parent = nullptr);

    /// The monitor's; set from the interface file.
    const QString &shortcutName() const { return _shortcutName; }
    void setShortcutName(const QString &name) { _shortcutName = name; }

    const QString &keyEquivalent() const { return _keyEquivalent; }
    ModifierFlags keyEquivalentModifierMask() const { return _keyEquivalentModifierMask; }

    void shortcutMonitorDidChange(ShortcutMonitor *monitor) override;
    Q_INVOKABLE void awakeFromNib();

private:
    void setKeyEquivalent(const QString &keyEquivalent, ModifierFlags modifierMask);

    QString _shortcutName;
    QString _keyEquivalent;
    ModifierFlags _keyEquivalentModifierMask = 0;
};

} // namespace barquell
