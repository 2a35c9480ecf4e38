// A program that does nothing but live: says on standard output what its life tells it, one line each. At
// launch it does what its argument says: post-and-terminate, terminate-at-launch, close-a-window,
// show-a-window or keep-a-window-open; terminate-before-run does it even earlier.
#include "foundation/Log.h"
#include "platform/linux/session/BusNotifications.h"
#include "platform/linux/session/LinuxAppLifecycle.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

#include <cstdio>

using namespace barquell;

namespace {

void say(const QString &line) {
    std::puts(qUtf8Printable(line));
    std::fflush(stdout);
}

class Refusal final : public QObject {
protected:
    bool eventFilter(QObject *object, QEvent *event) override {
        if (event->type() != QEvent::Close) {
            return QObject::eventFilter(object, event);
        }
        event->ignore();
        return true;
    }
};

class Sayer final : public AppLifecycleDelegate {
public:
    Sayer(AppLifecycle &lifecycle, RunningCopies &copies, DistributedNotifications &notifications)
        : _lifecycle(lifecycle), _copies(copies), _notifications(notifications) {
        lifecycle.setDelegate(this);
    }

    void applicationDidFinishLaunching() override {
        say(QStringLiteral("launched, copies %1")
                .arg(_copies.count(QStringLiteral("com.vexolith.barquell"))));
        const QString task = QCoreApplication::arguments().value(1);
        if (task == QLatin1String("post-and-terminate")) {
            _notifications.post(QStringLiteral("com.vexolith.barquell.show"));
            _lifecycle.terminate();
        } else if (task == QLatin1String("terminate-at-launch")) {
            _lifecycle.terminate();
            say(QStringLiteral("still here"));
        } else if (task == QLatin1String("close-a-window")) {
            QWindow window;
            window.show();
            window.close();
        } else if (task == QLatin1String("show-a-window")) {
            _window.show();
        } else if (task == QLatin1String("keep-a-window-open")) {
            _window.installEventFilter(&_refusal);
            _window.show();
        }
    }
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override {
        say(hasVisibleWindows ? QStringLiteral("reopen, windows") : QStringLiteral("reopen, no windows"));
        return true;
    }
    void applicationWillTerminate() override { say(QStringLiteral("terminate")); }

private:
    AppLifecycle &_lifecycle;
    RunningCopies &_copies;
    DistributedNotifications &_notifications;
    QWindow _window;
    Refusal _refusal;
};

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    setLogSink([](const QString &line) { say(QStringLiteral("log: ") + line); });
    SessionBus bus;
    RunningCopies copies(bus);
    LinuxAppLifecycle lifecycle(bus, copies);
    BusNotifications notifications(bus);
    Sayer sayer(lifecycle, copies, notifications);
    lifecycle.setScriptCommands(
        {.toggleTouchBar = [] { say(QStringLiteral("toggle")); },
         .setTouchBarActive = [](bool active) { say(QStringLiteral("active %1").arg(active ? 1 : 0)); },
         .status =
             [] {
                 return QVariantMap{{QStringLiteral("enabled"), true},
                                    {QStringLiteral("pauseFlags"), QStringList{QStringLiteral("shield")}}};
             }});
    if (QCoreApplication::arguments().value(1) == QLatin1String("terminate-before-run")) {
        lifecycle.terminate();
    }
    const int status = lifecycle.run();
    say(QStringLiteral("ended"));
    return status;
}
