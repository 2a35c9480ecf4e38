#include "platform/simulated/bar/SimulatedBar.h"

#include "platform/DistributedNotifications.h"
#include "platform/Platform.h"
#include "platform/simulated/bar/SimulatedBarWindow.h"

namespace barquell {

SimulatedBar::SimulatedBar(BarModifiers::Keyboard keyboard) : _modifiers(_taps, std::move(keyboard)) {}

SimulatedBar::~SimulatedBar() = default;

void SimulatedBar::show() {
    _window = std::make_unique<SimulatedBarWindow>(_controls);
    SimulatedBarWindow &window = *_window;
    window.setTouchHandler([this, &window](const std::vector<BarTouch> &touches) {
        _modifiers.keyboardChanged(); // a key may have gone down where nobody told us
        _touches.frame(touches);
        window.showCounts(_touches.passed(), _touches.heldBack());
    });
    window.setFnHandler([this](bool held) { _modifiers.setFnHeld(held); });
    window.setTrustHandler([this](bool given) {
        _trust.given = given;
        // What the system says when its list changes; the program looks again then.
        platform().distributedNotifications->post(QStringLiteral("com.apple.accessibility.api"));
    });
    _taps.userWasAsked = [&window] { window.ask(); };
    window.showTrust(_trust.given);
    window.show();
}

void SimulatedBar::hide() {
    _taps.userWasAsked = {};
    _window.reset();
}

} // namespace barquell
