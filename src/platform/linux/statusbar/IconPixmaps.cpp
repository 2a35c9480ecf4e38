#include "platform/linux/statusbar/IconPixmaps.h"

#include <QDBusArgument>
#include <QIcon>
#include <QImage>
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

// Pixel by pixel and not by Qt's painter: that would be loaded for this alone, and start threads for the
// largest size.

/// How much of each pixel the shape covers, 0 to 1; of a square with this side.
class Cover {
public:
    Cover(const QIcon &shape, int side) : _side(side), _cover(qsizetype{side} * side) {
        QImage image = shape.pixmap(QSize(side, side), 1.0).toImage();
        if (image.width() != side || image.height() != side) {
            image = image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                _cover[index(x, y)] = qAlpha(image.pixel(x, y)) / 255.0;
            }
        }
    }

    double at(int x, int y) const { return isInside(x) && isInside(y) ? _cover[index(x, y)] : 0; }

    /// By the shape and eight of its kind laid about it.
    double withNeighbours(int x, int y, int distance) const {
        double open = 1;
        for (const int right : {-distance, 0, distance}) {
            for (const int down : {-distance, 0, distance}) {
                open *= 1 - at(x + right, y + down);
            }
        }
        return 1 - open;
    }

private:
    bool isInside(int place) const { return place >= 0 && place < _side; }
    qsizetype index(int x, int y) const { return qsizetype{y} * _side + x; }

    int _side;
    QList<double> _cover;
};

QImage image(const QIcon &shape, int size, const QColor &color, double opacity) {
    const Cover cover(shape, size);
    const int width = std::max(1, size / kPixelsToHaloWidth);
    const int around = color.lightnessF() < 0.5 ? 255 : 0;
    QImage image(size, size, QImage::Format_ARGB32);
    for (int y = 0; y < size; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size; ++x) {
            const double ink = cover.at(x, y) * color.alphaF();
            const double halo = kHaloStrength * cover.withNeighbours(x, y, width) * (1 - ink);
            const double both = ink + halo;
            const auto mixed = [&](int part) {
                return both > 0 ? qRound((part * ink + around * halo) / both) : 0;
            };
            line[x] = qRgba(mixed(color.red()), mixed(color.green()), mixed(color.blue()),
                            qRound(255 * both * opacity)); // the whole, so that it dims as one
        }
    }
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
