// hudprobe [WORD...]: the HUD on the real desktop, with a scripted Touch Bar. The words, in any order:
//   location=N    the setting "HUDLocation"
//   pass          blocking is off, so the Touch Bar works
//   hold          shows the HUD again and again, so that it never fades
//   dark          the windows are dark
// Says "shown X Y W H", in Qt's coordinates, and "hidden" as the HUD comes and goes, "painted" each time that
// it is painted, and "screens N" whenever a screen came or went.

#include "say.h"

#include "blocking/TouchBarInterceptor.h"
#include "foundation/UserDefaults.h"
#include "foundation/interface/InterfaceClasses.h"
#include "menubar/hud/HUDPicture.h"
#include "menubar/hud/TouchBarHUDController.h"
#include "platform/linux/overlay/LinuxOverlayPanels.h"
#include "platform/linux/overlay/OverlayWindow.h"
#include "platform/simulated/ScriptedPlatform.h"

#include <QApplication>
#include <QScreen>

namespace {

using namespace barquell;

/// Stands where the application controller stands in the program.
class Owner final : public QObject {
    Q_OBJECT
    Q_PROPERTY(barquell::TouchBarHUDController *touchBarHUDController READ hud WRITE setHUD)

public:
    TouchBarHUDController *hud() const { return _hud; }
    void setHUD(TouchBarHUDController *hud) { _hud = hud; }

    bool eventFilter(QObject *object, QEvent *event) override {
        const auto *window = qobject_cast<OverlayWindow *>(object);
        if (window && event->type() == QEvent::Show) {
            const QRect place = window->geometry();
            say(QStringLiteral("shown %1 %2 %3 %4")
                    .arg(place.x())
                    .arg(place.y())
                    .arg(place.width())
                    .arg(place.height()));
        } else if (window && event->type() == QEvent::Hide) {
            say(QStringLiteral("hidden"));
        } else if (window && event->type() == QEvent::Paint) {
            say(QStringLiteral("painted"));
        }
        return false;
    }

private:
    QPointer<TouchBarHUDController> _hud;
};

QPalette darkPalette() {
    QPalette palette(QColor(0x35, 0x35, 0x3a), QColor(0x24, 0x24, 0x28));
    palette.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
    return palette;
}

void set(const char *key, const QVariant &value) {
    UserDefaults::standard().setObject(value, QString::fromLatin1(key));
}

void configure(const QStringList &words) {
    set("Enabled", !words.contains(QStringLiteral("pass")));
    set("HUDLocation", 1);
    for (const QString &word : words) {
        if (word.startsWith(QStringLiteral("location="))) {
            set("HUDLocation", word.mid(9).toInt());
        }
    }
    if (words.contains(QStringLiteral("dark"))) {
        QApplication::setPalette(darkPalette());
    }
}

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    const QStringList words = QApplication::arguments().mid(1);
    ScriptedPlatform scripted;
    scripted.install();
    LinuxOverlayPanels panels;
    Platform place = platform();
    place.overlayPanels = &panels;
    installPlatform(place);
    InterfaceClasses::add<HUDPlate>("HUDPlate");
    InterfaceClasses::add<HUDPicture>("HUDPicture");
    InterfaceClasses::add<TouchBarHUDVariant>("TouchBarHUDVariant");
    InterfaceClasses::add<TouchBarHUDController>("TouchBarHUDController");
    configure(words);
    TouchBarInterceptor::subscribeToUserDefaults();

    Owner owner;
    application.installEventFilter(&owner);
    const auto sayScreens = [] { say(QStringLiteral("screens %1").arg(QGuiApplication::screens().size())); };
    QObject::connect(&application, &QGuiApplication::screenAdded, sayScreens);
    QObject::connect(&application, &QGuiApplication::screenRemoved, sayScreens);
    const TopLevelObjects objects = TouchBarHUDController::loadFromNib(&owner);
    if (!owner.hud()) {
        return 1;
    }
    const auto show = [&owner] { owner.hud()->touchBatStateDidChange(nullptr); };
    show();
    std::unique_ptr<RunLoop::Timer> again;
    if (words.contains(QStringLiteral("hold"))) {
        again = RunLoop::main().scheduleRepeating(std::chrono::milliseconds(500), show);
    }
    return QApplication::exec();
}

#include "hudprobe.moc"
