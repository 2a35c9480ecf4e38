#pragma once

#include <QStringList>

namespace barquell {

/// `barquell replay`: leads recordings of devices through the interceptor and says what becomes of each
/// event.
int runReplay(const QStringList &arguments);

} // namespace barquell
