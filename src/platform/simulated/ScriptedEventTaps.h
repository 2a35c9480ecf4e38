#pragma once

#include "platform/AccessibilityTrust.h"
#include "platform/EventTap.h"
#include "platform/simulated/ScriptedEvent.h"

#include <functional>
#include <string>
#include <vector>

namespace barquell {

/// Event taps whose events come from a script. Like the system's they are refused while the process is
/// untrusted, and the user is then asked.
class ScriptedEventTaps final : public EventTaps {
public:
    /// The trust must outlive the taps.
    explicit ScriptedEventTaps(const AccessibilityTrust &trust) : _trust(trust) {}

    std::unique_ptr<EventTap> create(EventMask mask, EventTapCallback callback) override;
    bool canChangeFlags() const override { return flagsCanChange; }

    /// Hands an event to the tap. False where it was swallowed; it passes where no tap, a disabled one, or
    /// one that does not name its type stands in its way.
    bool deliver(ScriptedEvent &event);

    /// Disables the tap as the system does with one that does not answer in time, and tells it.
    void timeOut();

    /// What the installed tap calls, for calls that no script of events makes; nullptr without a tap.
    EventTapCallback installedCallback() const;

    int timesUserWasAsked() const { return _timesAsked; }
    std::function<void()> userWasAsked; ///< called each time, where set

    bool refuseTaps = false;    ///< create() fails although the process is trusted
    bool refuseSources = false; ///< createRunLoopSource() fails
    bool flagsCanChange = true;

    /// The calls made on taps, in their order.
    std::vector<std::string> journal;

private:
    class Tap;
    class Source;

    Tap *deliveringTap() const;

    const AccessibilityTrust &_trust;
    std::vector<Tap *> _taps; // each takes itself out
    int _timesAsked = 0;
};

} // namespace barquell
