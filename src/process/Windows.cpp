#include "process/Windows.h"

#include "foundation/NotificationCenter.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace barquell {

namespace {

/// Sees every event of every window. A close event alone says little, since the window may refuse it: it
/// closes when it does not and is hidden then.
class ClosingWatch final : public QObject {
public:
    explicit ClosingWatch(QApplication &application) : QObject(&application) {
        application.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() != QEvent::Close && event->type() != QEvent::Hide) {
            return false;
        }
        auto *widget = qobject_cast<QWidget *>(watched);
        if (!widget || !widget->isWindow()) {
            return false;
        }
        if (event->type() == QEvent::Close) {
            return askToClose(*widget, *event);
        }
        if (_asked == widget && !event->spontaneous()) {
            _asked = nullptr;
            NotificationCenter::defaultCenter().post({windowWillCloseNotification(), widget, {}});
        }
        return false;
    }

private:
    /// Delivers the event, to know whether it was refused: what hides the window later is no closing then.
    bool askToClose(QWidget &widget, QEvent &event) {
        if (std::exchange(_asking, true)) {
            return false;
        }
        _asked = &widget;
        qApp->notify(&widget, &event);
        _asking = false;
        if (!event.isAccepted()) {
            _asked = nullptr;
        }
        return true;
    }

    bool _asking = false;
    QPointer<QWidget> _asked; // to close, last of all
};

bool isOpenSheetOf(const QWidget &other, const QWidget &window) {
    const QWidget *parent = other.parentWidget();
    return other.isVisible() && other.isModal() && parent && parent->window() == &window;
}

} // namespace

bool hasWindows() {
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
}

QString windowWillCloseNotification() {
    return QStringLiteral("NSWindowWillCloseNotification");
}

void announceClosingWindows() {
    static QPointer<ClosingWatch> watch;
    if (hasWindows() && !watch) {
        watch = new ClosingWatch(*qApp); // NOLINT(cppcoreguidelines-owning-memory): its parent's
    }
}

bool hasEnabledCloseButton(const QWidget &window) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return window.windowFlags().testFlag(Qt::WindowCloseButtonHint) &&
           std::none_of(windows.begin(), windows.end(),
                        [&](const QWidget *each) { return isOpenSheetOf(*each, window); });
}

} // namespace barquell
