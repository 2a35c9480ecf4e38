#include "app/scripting/ToggleTouchBarCommand.h"

#include "app/ToggleRule.h"

namespace barquell {

QVariant ToggleTouchBarCommand::performDefaultImplementation() {
    toggleActive();
    return {};
}

} // namespace barquell
