#pragma once

#include "platform/macos/MacEventTaps.h"

#include <functional>
#include <memory>

namespace barquell {

/// The modifier keys of the keyboard, and word of their changes while this application is in front. Main
/// thread only.
class MacKeyboardModifiers final {
public:
    MacKeyboardModifiers();
    ~MacKeyboardModifiers();
    MacKeyboardModifiers(const MacKeyboardModifiers &) = delete;
    MacKeyboardModifiers &operator=(const MacKeyboardModifiers &) = delete;

    ModifierFlags currentFlags() const { return _state.currentFlags(); }

    /// There is one listener.
    void watch(std::function<void()> mayHaveChanged);

private:
    struct Native; // what only Objective-C can name

    MacModifierState _state;
    std::unique_ptr<Native> _native;
};

} // namespace barquell
