#pragma once

#include "app/scripting/ScriptCommand.h"

namespace barquell {

/// Turns "Active" over, which counts at the next start.
class ToggleTouchBarCommand final : public ScriptCommand {
public:
    QVariant performDefaultImplementation() override;
};

} // namespace barquell
