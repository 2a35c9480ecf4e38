#pragma once

#include <QWidget>

class QAbstractButton;

namespace barquell {

/// A small picture of a screen, on which the places to choose from lie: buttons, its children. The arrow keys
/// go from each to the next in the order of reading and round. Main thread only.
class ScreenPicture : public QWidget {
    Q_OBJECT

public:
    explicit ScreenPicture(QWidget *parent = nullptr) : QWidget(parent) {}

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QList<QAbstractButton *> places() const;
    void choose(const QObject *from, int step);
};

} // namespace barquell
