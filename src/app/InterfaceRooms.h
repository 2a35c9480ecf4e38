#pragma once

namespace barquell {

/// Makes the classes of every room known to interface files; to be called once, before the first is loaded.
void registerInterfaceClasses();

} // namespace barquell
