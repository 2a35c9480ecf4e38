#pragma once

#include <QString>

namespace barquell {

/// Makes the machine that the program runs on the place where it lives, see Platform. To be called once,
/// before anything reads a setting.
void installThisMachine();

/// Where the tap server listens; BARQUELL_TAP_SOCKET in the environment names another place.
QString tapServerSocket();

} // namespace barquell
