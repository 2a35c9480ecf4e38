#include "platform/linux/overlay/OverlayWindow.h"

#include "platform/linux/overlay/X11Desktop.h"

#include <QBitmap>
#include <QPainter>

namespace barquell {

OverlayWindow::OverlayWindow()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                           Qt::NoDropShadowWindowHint | Qt::WindowDoesNotAcceptFocus |
                           Qt::WindowTransparentForInput) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    // For those who look after all: compositors and screen readers.
    setAttribute(Qt::WA_X11NetWmWindowTypeNotification);
    setFocusPolicy(Qt::NoFocus);
}

OverlayWindow::~OverlayWindow() {
    releaseContent();
}

void OverlayWindow::setContent(QWidget *view) {
    if (view != _content) {
        releaseContent();
        _content = view;
    }
    if (view) {
        view->setParent(this);
        view->show();
    }
}

void OverlayWindow::releaseContent() {
    if (_content && _content->parentWidget() == this) {
        _content->hide();
        _content->setParent(nullptr);
    }
    _content = nullptr;
}

void OverlayWindow::orderFront() {
    if (!_content) {
        hide(); // an empty window would still be a dot
        return;
    }
    _translucent = X11Desktop::isComposited();
    if (_translucent) {
        clearMask();
    } else {
        cutToContent();
    }
    show();
    raise();
    update();
}

void OverlayWindow::cutToContent() {
    QImage picture(size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    _content->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    setMask(QBitmap::fromImage(picture.createAlphaMask()));
}

void OverlayWindow::paintEvent(QPaintEvent * /*event*/) {
    if (!_translucent) {
        QPainter(this).fillRect(rect(), palette().window());
    }
}

} // namespace barquell
