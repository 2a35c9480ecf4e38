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
    // As PNG, which Qt reads everywhere.
    const NSSize size = [image size];
    NSRect pixels = NSMakeRect(0, 0, size.width * screenScale(), size.height * screenScale());
    CGImageRef picture = [image CGImageForProposedRect:&pixels context:nil hints:nil];
    if (!picture) {
        return {};
    }
    NSBitmapImageRep *bitmap = [[NSBitmapImageRep alloc] initWithCGImage:picture];
    NSData *png = [bitmap representationUsingType:NSBitmapImageFileTypePNG
                                       properties:[NSDictionary dictionary]];
    QPixmap pixmap;
    pixmap.loadFromData(QByteArray::fromNSData(png));
    return QIcon(pixmap);
}

} // namespace barquell
