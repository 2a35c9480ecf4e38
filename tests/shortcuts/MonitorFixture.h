#pragma once

#include "foundation/UserDefaults.h"
#include "shortcuts/ShortcutMonitor.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <QStringList>

namespace barquell::test {

/// Counts what a monitor tells.
class MonitorListener : public QObject, public ShortcutMonitorListener {
    Q_OBJECT

public:
    void shortcutMonitorDidChange(ShortcutMonitor *monitor) override {
        ++changes;
        last = monitor;
    }

    int changes = 0;
    ShortcutMonitor *last = nullptr;
};

/// Notes whose action it got.
class MonitorTarget : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE void press(const QVariant &sender) { senders.push_back(sender.value<QObject *>()); }
    Q_INVOKABLE void other() { ++others; }

    std::vector<QObject *> senders;
    int others = 0;
};

/// The monitor "Light", F5 with Command, in a scripted place.
class MonitorFixture : public testing::Test {
protected:
    MonitorFixture() { place(); }

    static QString name() { return QStringLiteral("Light"); }
    static ScriptedHotKeys &hotKeys() { return place().platform.hotKeys; }
    static UserDefaults &defaults() { return UserDefaults::standard(); }
    static QVariantList f5() { return Shortcut::storageRepresentation(96, kFlagCommand); }

    static void store(const QVariant &shortcut, bool enabled = true) {
        defaults().setObject(shortcut, name());
        defaults().setObject(enabled, name() + QStringLiteral("Enabled"));
    }

    /// A monitor that holds its hot key.
    ShortcutMonitor &registered() {
        store(f5());
        ShortcutMonitor *monitor = ShortcutMonitor::monitorWithName(name());
        monitor->setTarget(&target, "press:");
        hotKeys().journal.clear();
        return *monitor;
    }

    MonitorTarget target;
    MonitorListener listener;
    LogCapture log;
};

} // namespace barquell::test
