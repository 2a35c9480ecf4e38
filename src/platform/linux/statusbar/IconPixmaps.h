#pragma once

#include <QByteArray>
#include <QList>
#include <QMetaType>

class QColor;
class QDBusArgument;
class QIcon;

namespace barquell {

/// One picture as status notifier items carry it: D-Bus type (iiay), 32 bits a pixel in the order alpha, red,
/// green, blue, not premultiplied.
struct IconPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes;

    bool operator==(const IconPixmap &) const = default;
};
using IconPixmaps = QList<IconPixmap>;

QDBusArgument &operator<<(QDBusArgument &argument, const IconPixmap &pixmap);
const QDBusArgument &operator>>(const QDBusArgument &argument, IconPixmap &pixmap);

/// A template image in the sizes that panels use: its shape in the colour, as opaque as said (0 to 1), and
/// about it a thin halo of the opposite lightness: no panel tells its colour, and it need not be that of the
/// desktop's windows. Empty for a null icon. Needs a QGuiApplication.
IconPixmaps iconPixmaps(const QIcon &shape, const QColor &color, double opacity);

/// The same as an icon, for what takes icons.
QIcon coloredIcon(const QIcon &shape, const QColor &color, double opacity);

} // namespace barquell

Q_DECLARE_METATYPE(barquell::IconPixmap)
