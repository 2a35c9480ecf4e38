#pragma once

namespace barquell {

/// Makes the classes of the interface file "TouchBarHUD" known to its loader.
void registerHUDClasses();

} // namespace barquell
