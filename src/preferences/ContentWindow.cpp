#include "preferences/ContentWindow.h"

#include "foundation/interface/FreeRoom.h"
#include "preferences/ContainerView.h"
#include "preferences/WindowDelegate.h"
#include "preferences/WindowFrame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEasingCurve>
#include <QLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QToolBar>
#include <QWindow>

namespace barquell {

namespace {

using namespace std::chrono_literals;

// A fifth of a second in steps of a screen's refresh.
constexpr auto kAnimationStep = 16ms;
constexpr int kAnimationSteps = 12;

// Of the free room above and below a window, what is above: the eye takes that for the middle.
constexpr double kShareAbove = 0.4;

} // namespace

ContentWindow::ContentWindow(QWidget *parent) : QMainWindow(parent) {
    setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the toolbar
}

void ContentWindow::awakeFromNib() {
    setResizable(_resizable); // now that it has the size of its file
    const QRect room = freeRoom(*screen());
    const int title = titleHeight(*this); // which comes above this place when the window is shown
    const int rest = room.height() - title - height();
    move(room.x() + (room.width() - width()) / 2, room.y() + title + std::max(0, qRound(rest * kShareAbove)));
}

ContainerView *ContentWindow::contentView() const {
    return qobject_cast<ContainerView *>(centralWidget());
}

int ContentWindow::toolbarHeight() const {
    const auto *toolbar = findChild<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    return toolbar ? toolbar->sizeHint().height() : 0;
}

/// What the window manager draws above and below the window. The widget would go on with what it was told
/// first.
QMarginsF ContentWindow::margins() const {
    const QMargins drawn = windowHandle() ? windowHandle()->frameMargins() : QMargins();
    return QMarginsF(0, drawn.top(), 0, drawn.bottom());
}

QRectF ContentWindow::frame() const {
    return turnedOver(QRectF(geometry()).marginsAdded(margins()));
}

QRectF ContentWindow::frameRectForContentRect(const QRectF &content) const {
    const QMarginsF toolbar(0, toolbarHeight(), 0, 0);
    return turnedOver(turnedOver(content).marginsAdded(margins() + toolbar));
}

/// With its title it fills the screen.
QSize ContentWindow::largestSize() const {
    const double around = std::max<double>(titleHeight(*this), margins().top() + margins().bottom());
    return screen()->availableSize() - QSize(0, qRound(around));
}

/// Higher up where it would grow over the lower edge of the room for windows and there is room above.
QRectF ContentWindow::keptOnScreen(const QRectF &target) const {
    const QRectF wanted = turnedOver(target);
    const QRectF room = freeRoom(*screen());
    const int titleToCome = isVisible() ? 0 : titleHeight(*this); // no part of the frame until it is shown
    const double excess = std::min(wanted.bottom() - room.bottom(), wanted.top() - titleToCome - room.top());
    const bool grows = wanted.height() > frame().height();
    return grows && excess > 0 ? turnedOver(wanted.translated(0, -excess)) : target;
}

void ContentWindow::setFrame(const QRectF &wanted, bool animate, std::function<void()> then) {
    _animation.reset();
    _afterAnimation = std::move(then);
    const QRectF frame = keptOnScreen(wanted);
    if (animate) {
        animateTo(frame);
        return;
    }
    applyFrame(frame);
    if (const auto after = std::exchange(_afterAnimation, {})) {
        after();
    }
}

void ContentWindow::animateTo(const QRectF &target) {
    _animation =
        RunLoop::main().scheduleRepeating(kAnimationStep, [this, from = frame(), target, step = 0]() mutable {
            if (++step < kAnimationSteps) {
                const QEasingCurve pace(QEasingCurve::InOutQuad);
                applyFrame(between(from, target,
                                   pace.valueForProgress(static_cast<double>(step) / kAnimationSteps)));
            } else {
                const QRectF last = target; // the next line ends what this function holds
                setFrame(last, false, std::exchange(_afterAnimation, {}));
            }
        });
}

void ContentWindow::applyFrame(const QRectF &frame) {
    QRect rect = onDevice(turnedOver(frame).marginsRemoved(margins()));
    rect.setSize(rect.size().boundedTo(largestSize()));
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    setGeometry(rect);
    if (!_resizable) {
        setFixedSize(rect.size());
    }
    if (!isVisible() && layout()) { // else what is inside would learn of it only when the window is shown
        layout()->invalidate();
        layout()->activate();
    }
}

void ContentWindow::setResizable(bool resizable) {
    _resizable = resizable;
    if (resizable) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        setFixedSize(size());
    }
}

void ContentWindow::setContentMinSize(const QSizeF &size) {
    _contentMinSize = size;
    applyContentLimits();
}

void ContentWindow::setContentMaxSize(const QSizeF &size) {
    _contentMaxSize = size;
    applyContentLimits();
}

void ContentWindow::applyContentLimits() {
    if (!_resizable) {
        return;
    }
    const auto windowSize = [chrome = toolbarHeight()](const QSizeF &content) {
        return onDevice(QRectF(QPointF(), QSizeF(content.width(), content.height() + chrome))).size();
    };
    const QSize largest = largestSize();
    const QSize least = windowSize(_contentMinSize).boundedTo(largest);
    setMinimumSize(least);
    setMaximumSize(windowSize(_contentMaxSize).boundedTo(largest).expandedTo(least));
}

void ContentWindow::resizeEvent(QResizeEvent *event) {
    QMainWindow::resizeEvent(event);
    if (WindowDelegate *hears = delegate()) {
        hears->windowDidResize();
    }
}

void ContentWindow::closeEvent(QCloseEvent *event) {
    WindowDelegate *asked = delegate();
    const bool byUser = event->spontaneous();
    if ((byUser && hasSheet()) || (asked && !asked->windowShouldClose())) {
        event->ignore();
        return;
    }
    event->accept();
    _animation.reset();
    _afterAnimation = {};
    if (asked) {
        asked->windowWillClose();
    }
}

void ContentWindow::mousePressEvent(QMouseEvent *event) {
    QMainWindow::mousePressEvent(event);
    if (_movableByBackground && event->button() == Qt::LeftButton && windowHandle()) {
        windowHandle()->startSystemMove();
    }
}

bool ContentWindow::hasSheet() const {
    const auto children = findChildren<QWidget *>();
    return std::any_of(children.begin(), children.end(), [](const QWidget *child) {
        return child->isWindow() && child->isModal() && child->isVisible();
    });
}

WindowDelegate *ContentWindow::delegate() const {
    return dynamic_cast<WindowDelegate *>(_delegate.data());
}

} // namespace barquell
