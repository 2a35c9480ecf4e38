#include "foundation/interface/Image.h"

#include "foundation/Log.h"

#include <QDir>
#include <QFile>
#include <QIconEngine>
#include <QPainter>

#include <algorithm>
#include <memory>

namespace barquell {

namespace {

/// Squares of pixels (four bytes, premultiplied) in files that are named by their side. Nothing of it is
/// kept, and no reader of image files is asked: the first one would load them all.
class DrawnPicture final : public QIconEngine {
public:
    explicit DrawnPicture(const QString &folder) : _folder(folder) {
        for (const QString &name : QDir(folder).entryList()) {
            _sides.append(name.toInt());
        }
        std::sort(_sides.begin(), _sides.end());
    }

    bool isNull() override { return _sides.isEmpty(); }
    QIconEngine *clone() const override { return std::make_unique<DrawnPicture>(*this).release(); }

    QPixmap pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        const auto enough =
            std::lower_bound(_sides.begin(), _sides.end(), std::max(size.width(), size.height()));
        QImage image = drawn(enough == _sides.end() ? _sides.constLast() : *enough);
        if (image.size() != size) {
            image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        }
        return QPixmap::fromImage(std::move(image));
    }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode mode, QIcon::State state) override {
        painter->drawPixmap(place,
                            pixmap(place.size() * painter->device()->devicePixelRatioF(), mode, state));
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int side : _sides) {
            sizes.append({side, side});
        }
        return sizes;
    }

private:
    QImage drawn(int side) const {
        QFile file(QStringLiteral("%1/%2").arg(_folder).arg(side));
        QImage image(side, side, QImage::Format_RGBA8888_Premultiplied);
        image.fill(Qt::transparent);
        if (file.open(QIODevice::ReadOnly)) {
            file.read(reinterpret_cast<char *>(image.bits()), image.sizeInBytes());
        }
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }

    QString _folder;
    QList<int> _sides; ///< the least first
};

} // namespace

QIcon imageNamed(const QString &name) {
    const QString path = QStringLiteral(":/images/") + name;
    if (QFile::exists(path)) {
        return QIcon(std::make_unique<DrawnPicture>(path).release()); // the icon's
    }
    const QString file = path + QStringLiteral(".svg");
    if (!QFile::exists(file)) {
        log(QStringLiteral("The image \"%1\" is missing").arg(name));
        return {};
    }
    return QIcon(file);
}

} // namespace barquell
