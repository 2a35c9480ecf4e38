#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/simulated/ScriptedEventTaps.h"
#include "platform/simulated/bar/BarModifiers.h"
#include "platform/simulated/bar/BarTouches.h"

#include <functional>
#include <memory>

namespace barquell {

class SimulatedBarWindow;

/// A switch in the bar's window in place of the system's permission.
class SwitchedTrust final : public AccessibilityTrust {
public:
    bool isProcessTrusted() const override { return given; }
    bool hasPrivacyPage() const override { return false; }

    bool given = true;
};

/// A Touch Bar in a window, for machines without one. Its touches go through the same tap as real ones would.
/// Needs the application while its window is shown. Main thread only.
class SimulatedBar {
public:
    /// What the keyboard's modifier keys are now.
    explicit SimulatedBar(BarModifiers::Keyboard keyboard);
    ~SimulatedBar();
    SimulatedBar(const SimulatedBar &) = delete;
    SimulatedBar &operator=(const SimulatedBar &) = delete;

    EventTaps &eventTaps() { return _taps; }
    BarModifiers &modifiers() { return _modifiers; }
    AccessibilityTrust &trust() { return _trust; }

    void show();

    /// Takes the window away; to be called before the application ends.
    void hide();

private:
    SwitchedTrust _trust;
    ScriptedEventTaps _taps{_trust};
    BarModifiers _modifiers;
    BarControls _controls;
    BarTouches _touches{_taps, _modifiers, _controls};
    std::unique_ptr<SimulatedBarWindow> _window;
};

} // namespace barquell
