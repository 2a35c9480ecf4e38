#include "platform/macos/MacImage.h"

#include <QBuffer>
#include <QPixmap>

#include <algorithm>

namespace barquell {

qreal screenScale() {
    return std::max<qreal>([[NSScreen mainScreen] backingScaleFactor], 1); // 0 without a screen
}

NSImage *nativeImage(const QIcon &icon, QSize size) {
    QByteArray png;
    QBuffer buffer(&png);
    if (icon.isNull() || !icon.pixmap(size, screenScale()).toImage().save(&buffer, "PNG")) {
        return nil;
    }
    NSImage *image = [[NSImage alloc] initWithData:png.toNSData()];
    [image setSize:NSMakeSize(size.width(), size.height())];
    return image;
}

QIcon iconFromNative(NSImage *image) {
    QPixmap pixmap;
    if (!image || !pixmap.loadFromData(QByteArray::fromNSData([image TIFFRepresentation]))) {
        return {};
    }
    return QIcon(pixmap);
}

} // namespace barquell
