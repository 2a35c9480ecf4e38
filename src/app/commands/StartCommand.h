#pragma once

#include <QStringList>

namespace barquell {

/// `barquell` without a command: blocks until it is told to end.
int runStart(const QStringList &arguments);

} // namespace barquell
