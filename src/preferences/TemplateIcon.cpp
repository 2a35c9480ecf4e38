#include "preferences/TemplateIcon.h"

#include "foundation/interface/Image.h"

#include <QAbstractButton>
#include <QAction>
#include <QGuiApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace barquell {

namespace {

/// Asks for the colour whenever it paints, since a desktop may turn dark in between.
class TemplateEngine final : public QIconEngine {
public:
    explicit TemplateEngine(QIcon shape) : _shape(std::move(shape)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatio();
        QPixmap image = scaledPixmap(rect.size() * ratio, mode, state, ratio);
        image.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), image);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1);
    }

    /// The size is in pixels of the device.
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/,
                         qreal /*scale*/) override {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        _shape.paint(&painter, image.rect());
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        painter.fillRect(image.rect(), QGuiApplication::palette().color(group, QPalette::WindowText));
        return image;
    }

    QIconEngine *clone() const override { return std::make_unique<TemplateEngine>(_shape).release(); }

private:
    QIcon _shape;
};

template <typename Item>
void setIcons(QWidget &root) {
    for (Item *item : root.findChildren<Item *>()) {
        const QString name = item->property("templateImage").toString();
        if (!name.isEmpty()) {
            item->setIcon(templateIcon(name));
        }
    }
}

} // namespace

QIcon templateIcon(const QString &imageName) {
    const QIcon shape = imageNamed(imageName);
    return shape.isNull() ? shape : QIcon(std::make_unique<TemplateEngine>(shape).release()); // the icon's
}

void setTemplateIcons(QWidget &root) {
    setIcons<QAction>(root);
    setIcons<QAbstractButton>(root);
}

} // namespace barquell
