#pragma once

#include "platform/simulated/bar/BarTouches.h"

#include <QWidget>

#include <functional>
#include <memory>

class QCheckBox;
class QLabel;

namespace barquell {

class BarView;

/// The window around the simulated bar: the glass above; below it Fn, the permission, and what became of the
/// touches. Like the real bar it never takes the keyboard from whoever has it. Closing it ends the program,
/// which would else go on without its bar.
class SimulatedBarWindow final : public QWidget {
    Q_OBJECT

public:
    explicit SimulatedBarWindow(const BarControls &controls);

    void setTouchHandler(std::function<void(const std::vector<BarTouch> &)> handler);
    void setFnHandler(std::function<void(bool held)> handler);
    void setTrustHandler(std::function<void(bool given)> handler);

    void showCounts(int passed, int heldBack);
    void showTrust(bool given);

    /// The program wants the permission: what the system's own prompt would say.
    void ask();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    std::unique_ptr<QWidget> makeSwitches();

    BarView *_bar;
    QCheckBox *_trust;
    QLabel *_prompt;
    QLabel *_counts;
    std::function<void(bool)> _fnHandler;
    std::function<void(bool)> _trustHandler;
};

} // namespace barquell
