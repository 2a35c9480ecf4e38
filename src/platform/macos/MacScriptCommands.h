#pragma once

#include <functional>
#include <optional>

namespace barquell {

/// What the two commands of the scripting dictionary do; the program sets it before the first event.
struct ScriptHandlers {
    std::function<void()> toggleTouchBar;
    std::function<void(std::optional<bool> active)> setTouchBarActive; ///< nothing: no argument was given
};

void setScriptHandlers(ScriptHandlers handlers);

} // namespace barquell
