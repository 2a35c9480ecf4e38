#pragma once

#include "foundation/RunLoop.h"

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <limits>

namespace barquell {

class ContainerView;
class WindowDelegate;

/// A window whose content is one ContainerView (its central widget), beneath a toolbar or not. Its frame is
/// the window with its title and toolbar, y growing upward, and horizontal margins count as zero. It is
/// resized by the program, and by the user within the content's limits where it is resizable. Main thread
/// only.
class ContentWindow : public QMainWindow {
    Q_OBJECT
    Q_PROPERTY(QObject *delegate READ delegateObject WRITE setDelegate)

public:
    explicit ContentWindow(QWidget *parent = nullptr);

    /// In the middle of the room for windows, a little above: where it is until the user moves it.
    Q_INVOKABLE void awakeFromNib();

    /// nullptr where the interface file gave it none.
    ContainerView *contentView() const;

    QRectF frame() const;
    QRectF frameRectForContentRect(const QRectF &content) const;

    /// Held to the size of the screen, and above the lower edge of the room for windows where it grows.
    /// Animated, the frame is reached through the run loop; what is to follow is called after the last step,
    /// or not at all where another frame is set or the window closes before.
    void setFrame(const QRectF &wanted, bool animate, std::function<void()> then = {});

    /// By the user.
    bool isResizable() const { return _resizable; }
    void setResizable(bool resizable);

    QSizeF contentMinSize() const { return _contentMinSize; }
    QSizeF contentMaxSize() const { return _contentMaxSize; }
    void setContentMinSize(const QSizeF &size);
    void setContentMaxSize(const QSizeF &size);

    /// A drag that begins on the background moves the window.
    void setMovableByWindowBackground(bool movable) { _movableByBackground = movable; }

    QObject *delegateObject() const { return _delegate; }
    void setDelegate(QObject *delegate) { _delegate = delegate; }

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    WindowDelegate *delegate() const;
    bool hasSheet() const;
    int toolbarHeight() const;
    QMarginsF margins() const;
    QSize largestSize() const;
    QRectF keptOnScreen(const QRectF &target) const;
    void applyFrame(const QRectF &frame);
    void applyContentLimits();
    void animateTo(const QRectF &target);

    QPointer<QObject> _delegate;
    bool _resizable = false;
    bool _movableByBackground = false;
    QSizeF _contentMinSize{0, 0};
    QSizeF _contentMaxSize{std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    std::unique_ptr<RunLoop::Timer> _animation;
    std::function<void()> _afterAnimation;
};

} // namespace barquell
