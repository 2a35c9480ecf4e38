#pragma once

#include "blocking/TrustedProcessChecker.h"
#include "platform/Event.h"

#include <QObject>
#include <QString>

#include <cstdint>

namespace barquell {

/// Announced locally after every change of the effective state; its userInfo holds "source", a
/// StateChangeSource.
QString touchBarStateChangedNotification();

enum StateChangeSource : int {
    StateChangeSourceTap = 0,        ///< the tap was made or taken away
    StateChangeSourcePauseKeys = 1,  ///< modifiers, the pause-key mask or its permission changed
    StateChangeSourcePauseFlags = 2, ///< a pause flag changed
};

/// Reasons outside the keyboard to suspend blocking.
inline constexpr std::uint32_t PauseFlagBypassedApp = 1;  ///< the frontmost application is bypassed
inline constexpr std::uint32_t PauseFlagScreenShield = 2; ///< the screen shield is raised

/// Holds touches of the Touch Bar back while blocking is in force. It follows its settings, the trust of the
/// process and the modifier keys, and announces each change of its effective state. A service of the process:
/// class methods over one state. Main thread only; its tap runs on the main run loop.
class TouchBarInterceptor final : public QObject, public TrustedProcessObserver {
    Q_OBJECT

public:
    /// The object that stands for the class where one must be named, as an observer of trust.
    static TouchBarInterceptor &cls();

    /// Trust came or went: a tap is made where blocking is wanted, or taken away.
    void processTrustedStateDidChange(bool trusted) override;

    /// The user wants blocking.
    static bool enabled();

    static std::uint32_t pauseFlags();

    /// Sets or clears pause flags; any overlap with what is set counts as set already. The tap stays
    /// installed, but is disabled while a flag is set.
    static void updatePauseFlags(std::uint32_t flags, bool set);

    /// Blocking was in force when it was last computed.
    static bool effectivelyEnabled();

    /// Those of the chosen pause keys that are held now; none while they are not honoured.
    static ModifierFlags pauseKeysHeld();

    /// Makes the system ask the user for access, by a tap that is never enabled.
    static void requestAuthorization();

    /// Starts blocking; to be called once, at launch.
    static void subscribeToUserDefaults();

private:
    TouchBarInterceptor() = default;
};

} // namespace barquell
