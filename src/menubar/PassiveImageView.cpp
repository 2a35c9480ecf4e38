#include "menubar/PassiveImageView.h"

#include "foundation/interface/Image.h"

#include <QPainter>

namespace barquell {

void PassiveImageView::awakeFromNib() {
    setAcceptDrops(false);
}

void PassiveImageView::setImageName(const QString &name) {
    _imageName = name;
    _image = imageNamed(name);
    update();
}

void PassiveImageView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    _image.paint(&painter, rect());
}

} // namespace barquell
