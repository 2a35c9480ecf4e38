#include "platform/linux/overlay/LinuxOverlayPanels.h"

#include "platform/linux/overlay/OverlayWindow.h"
#include "platform/linux/overlay/X11Desktop.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QVariantAnimation>

#include <utility>

namespace barquell {

namespace {

QRectF primaryScreen() {
    const QScreen *primary = QGuiApplication::primaryScreen();
    return primary ? QRectF(primary->geometry()) : QRectF();
}

class LinuxOverlayPanel final : public OverlayPanel {
public:
    LinuxOverlayPanel() {
        QObject::connect(&_fade, &QVariantAnimation::valueChanged, &_fade,
                         [this](const QVariant &opacity) { setOpacity(opacity.toDouble()); });
        QObject::connect(&_fade, &QVariantAnimation::finished, &_fade, [this] { tellFinished(); });
    }

    void setContent(QWidget *view) override { _window.setContent(view); }

    void setFrame(const QRectF &frame) override {
        const QRectF turned = turnedOver(frame, primaryScreen());
        _window.setFixedSize(frame.size().toSize());
        _window.move(turned.topLeft().toPoint());
    }

    void setOpacity(double opacity) override {
        _window.setWindowOpacity(opacity);
        X11Desktop::flush();
    }

    void animateOpacity(double opacity, std::chrono::milliseconds duration,
                        std::function<void()> finished) override {
        stopAnimations();
        _finished = std::move(finished);
        _fade.setDuration(static_cast<int>(duration.count()));
        _fade.setStartValue(_window.windowOpacity());
        _fade.setEndValue(opacity);
        _fade.start();
    }

    void stopAnimations() override {
        _fade.stop();
        tellFinished();
    }

    void orderFront() override {
        _window.orderFront();
        X11Desktop::flush();
    }

    void orderOut() override {
        _window.hide();
        X11Desktop::flush();
    }

    void close() override {
        _finished = nullptr;
        _fade.stop();
        orderOut();
    }

private:
    void tellFinished() {
        if (const auto finished = std::exchange(_finished, nullptr)) {
            finished();
        }
    }

    OverlayWindow _window;
    QVariantAnimation _fade;
    std::function<void()> _finished;
};

QScreen *screenWithFocus() {
    if (QScreen *active = X11Desktop::screenOfActiveWindow()) {
        return active;
    }
    QScreen *underPointer = QGuiApplication::screenAt(QCursor::pos());
    return underPointer ? underPointer : QGuiApplication::primaryScreen();
}

} // namespace

std::unique_ptr<OverlayPanel> LinuxOverlayPanels::createPanel() {
    return std::make_unique<LinuxOverlayPanel>();
}

QRectF LinuxOverlayPanels::mainScreenFrame() const {
    const QScreen *screen = screenWithFocus();
    return screen ? turnedOver(QRectF(screen->geometry()), primaryScreen()) : QRectF();
}

QRectF turnedOver(const QRectF &rectangle, const QRectF &primaryScreen) {
    return {rectangle.x(), primaryScreen.y() + primaryScreen.height() - rectangle.y() - rectangle.height(),
            rectangle.width(), rectangle.height()};
}

} // namespace barquell
