#pragma once

#include <QIcon>
#include <QWidget>

namespace barquell {

/// A picture that cannot be replaced by dropping a file on it, and that a drag takes for the window's
/// background. Main thread only.
class PassiveImageView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName WRITE setImageName)

public:
    explicit PassiveImageView(QWidget *parent = nullptr) : QWidget(parent) {}

    Q_INVOKABLE void awakeFromNib();

    /// A drag that starts here moves the window.
    static bool mouseDownCanMoveWindow() { return true; }

    QString imageName() const { return _imageName; }
    void setImageName(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString _imageName;
    QIcon _image;
};

} // namespace barquell
