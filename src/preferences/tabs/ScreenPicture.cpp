#include "preferences/tabs/ScreenPicture.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace barquell {

namespace {

int stepOf(int key) {
    switch (key) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return 1;
    case Qt::Key_Left:
    case Qt::Key_Up:
        return -1;
    default:
        return 0;
    }
}

} // namespace

void ScreenPicture::paintEvent(QPaintEvent * /*event*/) {
    constexpr double kRadius = 6;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.6F);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(palette().color(QPalette::Button)); // the choices on it have the colour of a base
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

QList<QAbstractButton *> ScreenPicture::places() const {
    return findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
}

void ScreenPicture::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    for (QAbstractButton *place : places()) {
        place->installEventFilter(this);
    }
}

/// Left to themselves, buttons go to the nearest in a direction, and none is nearest to the one in the
/// middle.
bool ScreenPicture::eventFilter(QObject *watched, QEvent *event) {
    const int step = event->type() == QEvent::KeyPress ? stepOf(static_cast<QKeyEvent *>(event)->key()) : 0;
    if (step == 0) {
        return QWidget::eventFilter(watched, event);
    }
    choose(watched, step);
    return true;
}

void ScreenPicture::choose(const QObject *from, int step) {
    const QList<QAbstractButton *> all = places();
    const qsizetype here = std::find(all.begin(), all.end(), from) - all.begin();
    QAbstractButton *next = all.at((here + step + all.size()) % all.size());
    next->setFocus();
    next->click();
}

} // namespace barquell
