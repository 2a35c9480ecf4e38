#pragma once

namespace barquell {

/// Makes this room's classes known to interface files; to be called once, before the first file is loaded.
void registerMenuBarClasses();

} // namespace barquell
