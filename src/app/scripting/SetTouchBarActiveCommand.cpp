#include "app/scripting/SetTouchBarActiveCommand.h"

#include "app/ToggleRule.h"
#include "foundation/Values.h"

namespace barquell {

QVariant SetTouchBarActiveCommand::performDefaultImplementation() {
    setActive(!boolValue(arguments.value(QString())));
    return {};
}

} // namespace barquell
