#pragma once

#include <QPointer>
#include <QWidget>

namespace barquell {

/// The window of an overlay panel: the window manager leaves it alone, so it stands above full-screen windows
/// and on every workspace, exactly where it is put; clicks fall through it and it never has the focus. Where
/// nothing composes the desktop it is cut to the shape of its content and is opaque.
class OverlayWindow final : public QWidget {
    Q_OBJECT

public:
    OverlayWindow();
    ~OverlayWindow() override;
    Q_DISABLE_COPY_MOVE(OverlayWindow)

    /// The view stays its owner's and leaves the window alive.
    void setContent(QWidget *view);

    void orderFront();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void releaseContent();
    void cutToContent();

    QPointer<QWidget> _content;
    bool _translucent = true;
};

} // namespace barquell
