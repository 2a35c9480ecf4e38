#pragma once

#include "app/scripting/ScriptCommand.h"

namespace barquell {

/// Sets "Active", which counts at the next start. The direct parameter says whether the Touch Bar is to be
/// active, that is usable; an active Touch Bar means that blocking is off, so the opposite is stored.
class SetTouchBarActiveCommand final : public ScriptCommand {
public:
    QVariant performDefaultImplementation() override;
};

} // namespace barquell
