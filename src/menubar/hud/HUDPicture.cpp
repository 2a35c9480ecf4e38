#include "menubar/hud/HUDPicture.h"

#include "foundation/interface/Image.h"

#include <QPainter>

namespace barquell {

void HUDPicture::setImage(const QString &image) {
    _image = image;
    _icon = imageNamed(image);
    update();
}

void HUDPicture::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    QPixmap picture = _icon.pixmap(size(), painter.deviceTransform().m11()); // as fine as what is painted on
    if (picture.isNull()) {
        return;
    }
    QPainter ink(&picture);
    ink.setCompositionMode(QPainter::CompositionMode_SourceIn);
    ink.fillRect(picture.rect(), palette().color(QPalette::WindowText));
    ink.end();
    painter.drawPixmap(0, 0, picture);
}

} // namespace barquell
