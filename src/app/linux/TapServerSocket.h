#pragma once

#include <QString>

namespace barquell {

/// Where the tap server listens; BARQUELL_TAP_SOCKET in the environment names another place.
QString tapServerSocket();

} // namespace barquell
