#pragma once

namespace barquell {

class UserDefaults;

/// Lays the program's own values under the stored settings; to be called before anything reads them.
void registerDefaults(UserDefaults &settings);

} // namespace barquell
