/// hotkeyprobe [menu|modal] NAME=KEYCODE,FLAGS...: global shortcuts on the real keys of the session. Says
/// "pressed NAME" for each press; with "menu" or "modal" one such is open all the time.

#include "say.h"

#include "foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/linux/keys/LinuxKeys.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "shortcuts/ShortcutMonitor.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>

using namespace barquell;

namespace {

class Target : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE void pressed(const QVariant &sender) {
        const auto *monitor = qobject_cast<ShortcutMonitor *>(sender.value<QObject *>());
        say(QStringLiteral("pressed %1").arg(monitor->name()));
    }
};

void follow(const QString &setting, Target &target) {
    const QString name = setting.section(QLatin1Char('='), 0, 0);
    const QString keyCode = setting.section(QLatin1Char('='), 1).section(QLatin1Char(','), 0, 0);
    const QString flags = setting.section(QLatin1Char(','), 1);
    UserDefaults::standard().setObject(
        Shortcut::storageRepresentation(keyCode.toULongLong(nullptr, 0), flags.toULongLong(nullptr, 0)),
        name);
    UserDefaults::standard().setObject(true, name + QStringLiteral("Enabled"));
    ShortcutMonitor *monitor = ShortcutMonitor::monitorWithName(name);
    monitor->setTarget(&target, "pressed:");
    say(QStringLiteral("%1 is %2").arg(name, monitor->shortcut()->description()));
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    LinuxKeys keys;
    MemorySettingsStore settings;
    installPlatform({.settingsStore = &settings,
                     .hotKeys = &keys.hotKeys(),
                     .keyboardLayout = &keys.keyboardLayout(),
                     .keyEvents = &keys.keyEvents()});
    Target target;
    QStringList arguments = QApplication::arguments().mid(1);
    const bool menuWanted = arguments.removeAll(QStringLiteral("menu")) > 0;
    const bool modalWanted = arguments.removeAll(QStringLiteral("modal")) > 0;
    for (const QString &setting : arguments) {
        follow(setting, target);
    }
    QWidget window;
    window.setWindowTitle(QStringLiteral("probe"));
    window.resize(300, 200);
    window.show();
    QMenu menu(QStringLiteral("menu"));
    menu.addAction(QStringLiteral("First"));
    QMessageBox box(&window);
    box.setWindowTitle(QStringLiteral("box"));
    QTimer::singleShot(200, &window, [&] {
        if (menuWanted) {
            QTimer::singleShot(0, &menu, [] { say(QStringLiteral("menu runs")); });
            menu.exec(window.mapToGlobal(QPoint(20, 20)));
        } else if (modalWanted) {
            QTimer::singleShot(0, &box, [] { say(QStringLiteral("box runs")); });
            box.exec();
        } else {
            say(QStringLiteral("ready"));
        }
    });
    return QApplication::exec();
}

#include "hotkeyprobe.moc"
