#include "platform/linux/statusbar/IconPixmaps.h"

#include <QDBusArgument>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace barquell {

namespace {

// A panel takes the one that fits its height best: rows of 16 to 64 pixels, and twice that on dense screens.
constexpr std::array kSizes{16, 22, 24, 32, 44, 48, 64, 128};

// Strong enough to tell a black shape from a black panel, faint enough to be calm at 16 pixels.
constexpr double kHaloStrength = 0.65;
constexpr int kPixelsToHaloWidth = 24;

/// Each pixel of an image by itself: for the largest size Qt's painter would start threads, which then stay.
template <typename Change>
void forEachPixel(QImage &image, const Change &change) {
    auto *pixels = reinterpret_cast<QRgb *>(image.bits());
    for (qsizetype i = 0; i < image.sizeInBytes() / qsizetype{sizeof(QRgb)}; ++i) {
        pixels[i] = change(pixels[i]);
    }
}

QImage filled(const QIcon &shape, int size, const QColor &color) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.drawPixmap(QRect(0, 0, size, size), shape.pixmap(QSize(size, size), 1.0));
    painter.end();
    forEachPixel(image, [&color](QRgb pixel) {
        return qPremultiply(
            qRgba(color.red(), color.green(), color.blue(), qAlpha(pixel) * color.alpha() / 255));
    });
    return image;
}

/// What lies around the shape, and beneath it.
QImage halo(const QIcon &shape, int size, const QColor &color) {
    const QImage once = filled(shape, size, color.lightnessF() < 0.5 ? Qt::white : Qt::black);
    QImage image(once.size(), once.format());
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const int width = std::max(1, size / kPixelsToHaloWidth);
    for (const int x : {-width, 0, width}) {
        for (const int y : {-width, 0, width}) {
            painter.drawImage(x, y, once);
        }
    }
    return image;
}

QImage image(const QIcon &shape, int size, const QColor &color, double opacity) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(kHaloStrength);
    painter.drawImage(0, 0, halo(shape, size, color));
    painter.setOpacity(1);
    painter.drawImage(0, 0, filled(shape, size, color));
    painter.end();
    image = image.convertToFormat(QImage::Format_ARGB32);
    forEachPixel(image, [opacity](QRgb pixel) { // the whole, so that it dims as one
        return qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), qRound(qAlpha(pixel) * opacity));
    });
    return image;
}

QByteArray bytes(const QImage &image) {
    QByteArray bytes(image.sizeInBytes(), Qt::Uninitialized);
    qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, bytes.data());
    return bytes;
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

IconPixmaps iconPixmaps(const QIcon &shape, const QColor &color, double opacity) {
    IconPixmaps pixmaps;
    if (!shape.isNull()) {
        for (const int size : kSizes) {
            pixmaps.append({size, size, bytes(image(shape, size, color, opacity))});
        }
    }
    return pixmaps;
}

QIcon coloredIcon(const QIcon &shape, const QColor &color, double opacity) {
    QIcon icon;
    if (!shape.isNull()) {
        for (const int size : kSizes) {
            icon.addPixmap(QPixmap::fromImage(image(shape, size, color, opacity)));
        }
    }
    return icon;
}

} // namespace barquell
