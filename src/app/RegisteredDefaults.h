#pragma once

namespace barquell {

/// Lays the program's own values under the stored settings; to be called before anything reads them.
void registerDefaults();

} // namespace barquell
