#pragma once

namespace barquell {

/// Whether there is a display that a QApplication could use. It asks the X server, so it may take a moment.
bool hasDisplay();

} // namespace barquell
