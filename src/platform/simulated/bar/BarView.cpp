#include "platform/simulated/bar/BarView.h"

#include "foundation/Bundle.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>

#include <algorithm>

namespace barquell {

namespace {

constexpr int kMouse = -1; // the mouse as a finger; touch points count from 0
constexpr double kCorner = 6;
constexpr double kGroove = 4;
constexpr double kKnob = 9;
const QColor kGlass(0, 0, 0);
const QColor kKey(54, 54, 56);
const QColor kLitKey(142, 142, 147);
const QColor kPrint(235, 235, 240);

void paintSlider(QPainter &painter, const QRectF &place, const QString &name, double value, bool lit) {
    painter.setPen(kPrint);
    const QRectF text = place.adjusted(10, 0, 0, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft, name);
    painter.setPen(Qt::NoPen);
    // The whole control is the slider's range, so a finger is always where the knob is.
    const double x = place.left() + value * place.width();
    const QRectF groove(place.left(), place.bottom() - kGroove - 2, place.width(), kGroove);
    painter.setBrush(kLitKey);
    painter.drawRoundedRect(groove, kGroove / 2, kGroove / 2);
    painter.setBrush(lit ? Qt::white : kPrint);
    painter.drawRoundedRect(QRectF(groove.left(), groove.top(), x - groove.left(), kGroove), kGroove / 2,
                            kGroove / 2);
    const double knob = std::clamp(x, place.left() + kKnob / 2, place.right() - kKnob / 2);
    painter.drawEllipse(QPointF(knob, groove.center().y()), kKnob / 2, kKnob / 2);
}

TouchPhases phaseOf(const QEventPoint &point) {
    switch (point.state()) {
    case QEventPoint::Pressed:
        return kTouchBegan;
    case QEventPoint::Updated:
        return kTouchMoved;
    case QEventPoint::Released:
        return kTouchEnded;
    default:
        return kTouchStationary;
    }
}

} // namespace

BarView::BarView(const BarControls &controls, QWidget *parent) : QWidget(parent), _controls(controls) {
    setAttribute(Qt::WA_AcceptTouchEvents);
    setFixedSize(static_cast<int>(kBarWidth), static_cast<int>(kBarHeight));
    setAccessibleName(Bundle::localizedString(QStringLiteral("Simulated Touch Bar")));
    setObjectName(QStringLiteral("barView"));
}

bool BarView::event(QEvent *event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::TouchBegin && type != QEvent::TouchUpdate && type != QEvent::TouchEnd &&
        type != QEvent::TouchCancel) {
        return QWidget::event(event);
    }
    std::vector<BarTouch> touches;
    for (const QEventPoint &point : static_cast<QTouchEvent *>(event)->points()) {
        touches.push_back({point.id(), type == QEvent::TouchCancel ? kTouchCancelled : phaseOf(point),
                           point.position().x()});
    }
    touched(touches);
    event->accept();
    return true;
}

void BarView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), kGlass);
    QFont font = painter.font();
    font.setPixelSize(13);
    painter.setFont(font);
    const auto &controls = barControls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const QRectF place(controls[i].left, 0, controls[i].width, kBarHeight);
        const QString name = Bundle::localizedString(controls[i].name);
        const bool lit = _controls.isLit(i);
        painter.setPen(Qt::NoPen);
        painter.setBrush(lit && controls[i].kind == BarControl::Kind::Key ? kLitKey : kKey);
        painter.drawRoundedRect(place, kCorner, kCorner);
        if (controls[i].kind == BarControl::Kind::Slider) {
            paintSlider(painter, place, name, _controls.value(i), lit);
        } else {
            painter.setPen(lit ? QColor(Qt::black) : kPrint);
            painter.drawText(place, Qt::AlignCenter, name);
        }
    }
}

void BarView::mousePressEvent(QMouseEvent *event) {
    mouse(kTouchBegan, event->position().x());
}

void BarView::mouseMoveEvent(QMouseEvent *event) {
    mouse(kTouchMoved, event->position().x());
}

void BarView::mouseReleaseEvent(QMouseEvent *event) {
    mouse(kTouchEnded, event->position().x());
}

void BarView::mouse(TouchPhases phase, double x) {
    touched({{kMouse, phase, x}});
}

void BarView::touched(const std::vector<BarTouch> &touches) {
    if (_handler) {
        _handler(touches);
    }
    update();
}

} // namespace barquell
