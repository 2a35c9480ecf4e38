#pragma once

#include <QStringList>

namespace barquell {

/// `barquell status`: what is running, trusted, held back and held.
int runStatus(const QStringList &arguments);

} // namespace barquell
