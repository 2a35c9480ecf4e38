#pragma once

namespace barquell {

/// Lets interface files name the tabs and what is in them. To be called before the first is loaded.
void registerPreferencesTabs();

} // namespace barquell
