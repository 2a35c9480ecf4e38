#include "preferences/ContainerView.h"

#include "preferences/WindowFrame.h"

namespace barquell {

ContainerView::ContainerView(QWidget *parent) : QWidget(parent) {}

ContainerView::~ContainerView() {
    if (_contentView) {
        _contentView->setParent(nullptr); // its owner's, and may be shown again
    }
}

void ContainerView::setContentView(QWidget *view) {
    if (view == _contentView) {
        return;
    }
    if (_contentView) {
        _contentView->setParent(nullptr);
    }
    _contentView = view;
    _moveContentView();
    if (view) {
        view->setParent(this);
        view->show();
    }
}

void ContainerView::setContentView(QWidget *view, std::uint32_t mode) {
    if (view == _contentView) {
        setContentLayoutMode(mode);
        return;
    }
    _contentLayoutMode = mode;
    setContentView(view);
}

void ContainerView::setContentLayoutMode(std::uint32_t mode) {
    if (mode != _contentLayoutMode) {
        _contentLayoutMode = mode;
        _moveContentView();
    }
}

void ContainerView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    _moveContentView();
}

void ContainerView::_moveContentView() {
    if (_contentView) {
        const QRectF frame = placeContent(rect(), _contentView->size(), _contentLayoutMode);
        _contentView->setGeometry(onDevice(turnedOver(frame, height())));
    }
}

} // namespace barquell
