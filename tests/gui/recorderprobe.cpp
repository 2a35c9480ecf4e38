/// recorderprobe: a window with a recorder of the shortcut "Light" and a menu that shows it, on the real keys
/// of the session. Says "title TEXT" whenever the recorder's title has changed, "stored A B" for what is
/// stored, "focus NAME" for where the focus went, and "pressed" when the shortcut is pressed.

#include "say.h"

#include "foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/linux/keys/LinuxKeys.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "shortcuts/controls/ShortcutCaptureButton.h"
#include "shortcuts/controls/ShortcutMenuItem.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>

using namespace barquell;

namespace {

/// Says what it is told to say, when it has changed.
class Watch {
public:
    void show(const QString &line) {
        if (line != _last) {
            _last = line;
            say(line);
        }
    }

private:
    QString _last;
};

class Target : public QObject {
    Q_OBJECT

public:
    Q_INVOKABLE void pressed() { say(QStringLiteral("pressed")); }
};

QString storedText() {
    QStringList words{QStringLiteral("stored")};
    for (const QVariant &number : UserDefaults::standard().objectForKey(QStringLiteral("Light")).toList()) {
        words.append(number.toString());
    }
    return words.join(QLatin1Char(' '));
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
    const QString name = QStringLiteral("Light");
    UserDefaults::standard().setObject(true, name + QStringLiteral("Enabled"));
    Target target;
    ShortcutMonitor::monitorWithName(name)->setTarget(&target, "pressed");

    QWidget window;
    window.setObjectName(QStringLiteral("window"));
    window.setWindowTitle(QStringLiteral("recorder"));
    QLineEdit line;
    line.setObjectName(QStringLiteral("line"));
    ShortcutCaptureButton recorder;
    recorder.setObjectName(QStringLiteral("recorder"));
    QPushButton clear(QStringLiteral("Clear"));
    clear.setObjectName(QStringLiteral("clear"));
    QCheckBox enabled(QStringLiteral("Enabled"));
    enabled.setObjectName(QStringLiteral("enabled"));
    ShortcutMenuItem item;
    item.setText(QStringLiteral("Switch the light"));
    item.setShortcutName(name);
    QMenuBar bar;
    QMenu *menu = bar.addMenu(QStringLiteral("&Menu"));
    menu->addAction(&item);
    QHBoxLayout layout(&window);
    layout.setMenuBar(&bar);
    for (QWidget *widget : std::initializer_list<QWidget *>{&line, &recorder, &clear, &enabled}) {
        layout.addWidget(widget);
    }
    recorder.setShortcutName(name);
    recorder.setClearButton(&clear);
    recorder.setEnabledCheckbox(&enabled);
    recorder.awakeFromNib();
    item.awakeFromNib();
    line.setFocus();
    window.move(100, 100);
    window.show();

    Watch title;
    Watch stored;
    Watch focus;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        title.show(QStringLiteral("title ") + recorder.text());
        stored.show(storedText());
        const QWidget *widget = QApplication::focusWidget();
        focus.show(QStringLiteral("focus ") + (widget ? widget->objectName() : QStringLiteral("nowhere")));
    });
    timer.start(5);
    return QApplication::exec();
}

#include "recorderprobe.moc"
