#pragma once

#include "platform/ModifierState.h"
#include "platform/simulated/ScriptedEventTaps.h"
#include "platform/simulated/bar/BarControls.h"

#include <map>
#include <vector>

namespace barquell {

/// One finger in a frame of touches.
struct BarTouch {
    int finger = 0;
    TouchPhases phase = kTouchBegan; ///< one of them
    double x = 0;                    ///< points from the bar's left end
};

/// Leads frames of touches through the tap, as the system does, and lets the bar's controls have what passes.
/// A finger whose touch first passes while it rests begins there and then; one that leaves the bar in a frame
/// that is held back leaves the controls too.
class BarTouches {
public:
    BarTouches(ScriptedEventTaps &taps, const ModifierState &modifiers, BarControls &controls)
        : _taps(taps), _modifiers(modifiers), _controls(controls) {}

    /// All fingers that are on the bar, or were until this frame.
    void frame(const std::vector<BarTouch> &touches);

    int passed() const { return _passed; }     ///< touches that reached a control or could have
    int heldBack() const { return _heldBack; } ///< touches that ended without any of it having passed

private:
    bool passes(const std::vector<BarTouch> &touches);
    void letThrough(const BarTouch &touch);
    void end(int finger);

    ScriptedEventTaps &_taps;
    const ModifierState &_modifiers;
    BarControls &_controls;
    std::map<int, bool> _fingers; // on the bar; whether anything of the touch has passed
    int _passed = 0;
    int _heldBack = 0;
};

} // namespace barquell
