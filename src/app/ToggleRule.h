#pragma once

namespace barquell {

/// Turns the stored "Active" over. Blocking follows "Enabled": nothing in the running program looks at
/// "Active", which the program entry folds into "Enabled" at the next start.
void toggleActive();

/// Stores "Active" as it is given.
void setActive(bool active);

} // namespace barquell
