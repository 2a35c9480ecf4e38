#pragma once

#include "platform/AppLifecycle.h"

namespace barquell {

/// What the two commands of the scripting dictionary do from now on. A boolean that a script leaves out is
/// false.
void setMacScriptCommands(ScriptCommands commands);

} // namespace barquell
