#pragma once

#include "platform/simulated/bar/BarTouches.h"

#include <QWidget>

#include <functional>

namespace barquell {

/// The glass of the simulated bar: shows its controls, and takes fingers and the mouse.
class BarView final : public QWidget {
    Q_OBJECT

public:
    explicit BarView(const BarControls &controls, QWidget *parent = nullptr);

    /// Is handed each frame of touches.
    void setTouchHandler(std::function<void(const std::vector<BarTouch> &)> handler) {
        _handler = std::move(handler);
    }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void touched(const std::vector<BarTouch> &touches);
    void mouse(TouchPhases phase, double x);

    const BarControls &_controls;
    std::function<void(const std::vector<BarTouch> &)> _handler;
};

} // namespace barquell
