#pragma once

namespace barquell {

/// Makes the machine that the program runs on the place where it lives, see Platform. To be called once,
/// before anything reads a setting.
void installThisMachine();

} // namespace barquell
