#pragma once

#include <QIcon>
#include <QWidget>

namespace barquell {

/// A picture whose shape alone counts, in the ink of the palette's text and sharp at any scale factor.
class HUDPicture final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString image READ image WRITE setImage)

public:
    explicit HUDPicture(QWidget *parent = nullptr) : QWidget(parent) {}

    /// A name for imageNamed(). Nothing is painted where there is no such image.
    const QString &image() const { return _image; }
    void setImage(const QString &image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString _image;
    QIcon _icon;
};

} // namespace barquell
