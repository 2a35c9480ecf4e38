#pragma once

#include <QStringList>

namespace barquell {

/// Runs the command that the words name, the command's own name first, and returns the exit code of the
/// process.
int runCommand(const QStringList &words);

} // namespace barquell
