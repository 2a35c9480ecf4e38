#pragma once

namespace barquell {

/// Lets interface files name the window and its container. To be called before the first is loaded.
void registerPreferencesClasses();

} // namespace barquell
