#include "platform/macos/MacImage.h"

#include <QBuffer>
#include <QPixmap>

namespace barquell {

NSImage *nativeImage(const QIcon &icon, QSize size) {
    const qreal scale = [[NSScreen mainScreen] backingScaleFactor];
    QByteArray png;
    QBuffer buffer(&png);
    if (icon.isNull() || !icon.pixmap(size, scale).toImage().save(&buffer, "PNG")) {
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
