#pragma once

namespace barquell {

class UserDefaults;

/// Waits until all that was set is stored; the exit code of a command that did no more than that.
int saveSettings(UserDefaults &settings);

} // namespace barquell
