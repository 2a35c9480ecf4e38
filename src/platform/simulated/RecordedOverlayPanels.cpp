#include "platform/simulated/RecordedOverlayPanels.h"

#include "foundation/RunLoop.h"

#include <QString>

#include <utility>

namespace barquell {

class RecordedOverlayPanels::Panel final : public OverlayPanel {
public:
    explicit Panel(RecordedOverlayPanels &panels) : _panels(panels) {
        note("create");
        state() = {};
    }

    ~Panel() override {
        note("destroy");
        state().visible = false;
        state().fading = false;
    }

    Panel(const Panel &) = delete;
    Panel &operator=(const Panel &) = delete;

    void setContent(QWidget *view) override {
        note(view ? "content" : "no content");
        state().content = view;
    }

    void setFrame(const QRectF &frame) override {
        note("frame");
        state().frame = frame;
    }

    void setOpacity(double opacity) override {
        note("opacity " + QString::number(opacity).toStdString());
        state().opacity = opacity;
    }

    void animateOpacity(double opacity, std::chrono::milliseconds duration,
                        std::function<void()> finished) override {
        note("fade to " + QString::number(opacity).toStdString());
        endAnimation();
        state().fading = true;
        _finished = std::move(finished);
        _animation = RunLoop::main().scheduleOnce(duration, [this, opacity] {
            state().opacity = opacity;
            endAnimation();
        });
    }

    void stopAnimations() override {
        note("stop");
        endAnimation();
    }

    void orderFront() override {
        note("front");
        state().visible = true;
    }

    void orderOut() override {
        note("out");
        state().visible = false;
    }

    void close() override {
        note("close");
        _finished = nullptr;
        endAnimation();
        state().visible = false;
    }

private:
    void note(std::string call) { _panels.journal.push_back(std::move(call)); }
    State &state() { return _panels.panel; }

    void endAnimation() {
        _animation.reset();
        state().fading = false;
        if (const auto finished = std::exchange(_finished, nullptr)) {
            finished();
        }
    }

    RecordedOverlayPanels &_panels;
    std::unique_ptr<RunLoop::Timer> _animation;
    std::function<void()> _finished;
};

std::unique_ptr<OverlayPanel> RecordedOverlayPanels::createPanel() {
    return std::make_unique<Panel>(*this);
}

} // namespace barquell
