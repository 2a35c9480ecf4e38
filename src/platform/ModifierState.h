#pragma once

#include "platform/ModifierFlags.h"

namespace barquell {

/// The modifier keys that are held at this moment, whether or not a tap is installed.
class ModifierState {
public:
    virtual ~ModifierState() = default;

    /// 0 where it cannot be known. Main thread only.
    /// macOS: CGEventSourceFlagsState(kCGEventSourceStateCombinedSessionState).
    virtual ModifierFlags currentFlags() const = 0;

protected:
    ModifierState() = default;
    ModifierState(const ModifierState &) = default;
    ModifierState &operator=(const ModifierState &) = default;
};

} // namespace barquell
