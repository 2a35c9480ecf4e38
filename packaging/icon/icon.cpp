// Draws the program's icon from its SVG while the program is built, and other pictures as well:
//   barquell-icon icon.svg SIZE out.png     one picture, SIZE pixels wide and high
//   barquell-icon icon.svg SIZE out         the same as pixels: red, green, blue, alpha, premultiplied
//   barquell-icon icon.svg out.icns         the Mac's container with all its sizes

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QTextStream>
#include <QtEndian>

namespace {

/// What the container calls a PNG of that many pixels: 128, 256, 512, and those of doubled resolution.
struct Entry {
    const char *name;
    int pixels;
};
constexpr Entry kEntries[] = {{"ic07", 128}, {"ic08", 256}, {"ic09", 512}, {"ic10", 1024},
                              {"ic11", 32},  {"ic12", 64},  {"ic13", 256}, {"ic14", 512}};

QImage draw(QSvgRenderer &svg, int pixels) {
    QImage image(pixels, pixels, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    svg.render(&painter);
    return image;
}

QByteArray png(QSvgRenderer &svg, int pixels) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    draw(svg, pixels).save(&buffer, "PNG");
    return bytes;
}

QByteArray picture(QSvgRenderer &svg, int pixels, bool plain) {
    const QImage image = plain ? draw(svg, pixels) : QImage();
    return plain ? QByteArray(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes())
                 : png(svg, pixels);
}

/// A name of four letters, the length of it all in four bytes (the highest first), and the content.
QByteArray block(const char *name, const QByteArray &content) {
    QByteArray length(4, 0);
    qToBigEndian(static_cast<quint32>(content.size() + 8), length.data());
    return name + length + content;
}

QByteArray icns(QSvgRenderer &svg) {
    QByteArray content;
    for (const Entry &entry : kEntries) {
        content += block(entry.name, png(svg, entry.pixels));
    }
    return block("icns", content);
}

int complain(const QString &what) {
    QTextStream(stderr) << "barquell-icon: " << what << '\n';
    return 1;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3 && argc != 4) {
        return complain(QStringLiteral("icon.svg SIZE out, or icon.svg out.icns"));
    }
    QSvgRenderer svg(QString::fromLocal8Bit(argv[1]));
    if (!svg.isValid()) {
        return complain(QStringLiteral("%1 is no SVG").arg(QString::fromLocal8Bit(argv[1])));
    }
    const int pixels = argc == 4 ? QByteArray(argv[2]).toInt() : 1;
    if (pixels < 1 || pixels > 1024) {
        return complain(QStringLiteral("a size is 1 to 1024 pixels"));
    }
    QSaveFile file(QString::fromLocal8Bit(argv[argc - 1]));
    const bool plain = !file.fileName().endsWith(QLatin1String(".png"));
    const QByteArray bytes = argc == 4 ? picture(svg, pixels, plain) : icns(svg);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        return complain(file.errorString());
    }
    return 0;
}
