#pragma once

#include <QStringList>

namespace barquell {

/// Starts the program with a Touch Bar in a window.
inline constexpr const char *kSimulateOption = "--simulate";

/// `barquell` without a command: blocks until it is told to end.
int runStart(const QStringList &arguments);

} // namespace barquell
