#pragma once

#include <QStringList>

namespace barquell {

/// `barquell revoke`: gives up this user's permission to filter.
int runRevoke(const QStringList &arguments);

} // namespace barquell
