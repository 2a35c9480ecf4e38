#include "menubar/LikeTheAppTracker.h"

#include "foundation/Bundle.h"
#include "foundation/NotificationCenter.h"
#include "foundation/RunLoop.h"
#include "foundation/UserDefaults.h"
#include "foundation/interface/Image.h"
#include "process/Helpers.h"

#include <QDateTime>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace barquell {

namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;

constexpr std::chrono::seconds kFirstDelay = 24h * 5;
constexpr std::chrono::seconds kLaterDelay = 24h * 5;
constexpr std::chrono::seconds kLongDelay = 24h * 365;

// The wall clock can jump, and Qt counts a timer's milliseconds in 31 bits, which is 24.8 days.
constexpr milliseconds kLongestSleep = 24h;

struct Static {
    bool canDisplay = false;
    std::unique_ptr<RunLoop::Timer> displayTimer; ///< none while the entry is offered
    QPointer<QMessageBox> dialog;
};

Static &state() {
    static Static instance;
    return instance;
}

QString displayDateKey() {
    return QStringLiteral("LTADisplayDate");
}

void postButtonNotification() {
    NotificationCenter::defaultCenter().post({.name = likeTheAppButtonNotification(), .userInfo = {}});
}

/// Stores the date that lies the delay ahead.
QDateTime storeDisplayDate(std::chrono::seconds delay) {
    QDateTime date = RunLoop::main().wallClock().addSecs(delay.count());
    UserDefaults::standard().setObject(date, displayDateKey());
    return date;
}

void scheduleDisplayTimer(const QDateTime &date) {
    const milliseconds remaining(RunLoop::main().wallClock().msecsTo(date));
    state().displayTimer =
        RunLoop::main().scheduleOnce(std::clamp(remaining, milliseconds(0), kLongestSleep), [date] {
            if (RunLoop::main().wallClock() < date) {
                scheduleDisplayTimer(QDateTime(date)); // the timer that holds our date goes away with this
            } else {
                LikeTheAppTracker::displayTimerDidFire();
            }
        });
}

void rescheduleAfter(std::chrono::seconds delay) {
    const QDateTime date = storeDisplayDate(delay);
    state().canDisplay = false;
    scheduleDisplayTimer(date);
    postButtonNotification();
}

/// The question, with its answers in this order.
class Dialog final : public QMessageBox {
public:
    explicit Dialog(QWidget *window) : QMessageBox(window) {
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setWindowTitle(Bundle::localizedName());
        setIconPixmap(imageNamed(Bundle::mainBundleIdentifier()).pixmap(64, 64));
        setText(Bundle::format(text("LIKETHEAPP_TITLE"), Bundle::localizedName()));
        setInformativeText(text("LIKETHEAPP_DESC"));
        _yes = addButton(text("LIKETHEAPP_YES"), QMessageBox::AcceptRole);
        _later = addButton(text("LIKETHEAPP_LATER"), QMessageBox::ActionRole);
        setDefaultButton(_yes);
        setEscapeButton(addButton(text("LIKETHEAPP_NO"), QMessageBox::RejectRole));
        connect(this, &QDialog::finished, this, &Dialog::answer);
    }

    /// One that goes with its window was answered otherwise.
    ~Dialog() override {
        if (!_answered) {
            rescheduleAfter(kLongDelay);
        }
    }
    Q_DISABLE_COPY_MOVE(Dialog)

private:
    static QString text(const char *key) { return Bundle::localizedString(QString::fromLatin1(key)); }

    void answer() {
        _answered = true;
        state().dialog.clear(); // it goes a little later
        if (clickedButton() == _later) {
            rescheduleAfter(kLaterDelay);
            return;
        }
        if (clickedButton() == _yes) {
            Helpers::openAppStoreRateURL();
        }
        rescheduleAfter(kLongDelay);
    }

    QPushButton *_yes;
    QPushButton *_later;
    bool _answered = false;
};

} // namespace

QString likeTheAppButtonNotification() {
    return QStringLiteral("com.vexolith.like-the-app.button");
}

void LikeTheAppTracker::start() {
    const QVariant stored = UserDefaults::standard().objectForKey(displayDateKey());
    const QDateTime date = stored.metaType() == QMetaType::fromType<QDateTime>()
                               ? stored.toDateTime()
                               : storeDisplayDate(kFirstDelay);
    state().canDisplay = date < RunLoop::main().wallClock();
    if (!state().canDisplay) {
        scheduleDisplayTimer(date);
    }
}

bool LikeTheAppTracker::canDisplayButton() {
    return state().canDisplay;
}

void LikeTheAppTracker::showDialogModalForWindow(QWidget *window) {
    if (state().dialog) {
        state().dialog->raise();
        state().dialog->activateWindow();
        return;
    }
    state().dialog = new Dialog(window); // NOLINT(cppcoreguidelines-owning-memory): deletes itself
    if (window) {
        state().dialog->open();
    } else {
        state().dialog->setWindowModality(Qt::ApplicationModal);
        state().dialog->show();
    }
}

void LikeTheAppTracker::displayTimerDidFire() {
    state().canDisplay = true;
    postButtonNotification();
}

} // namespace barquell
