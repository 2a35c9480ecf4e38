#pragma once

#include <QStringList>

namespace barquell {

/// `barquell defaults read|write|delete`: the settings at the prompt, on the platform's store. The first
/// argument is "defaults". Returns the exit code. Needs a QCoreApplication, but no running event loop.
int runDefaults(const QStringList &arguments);

} // namespace barquell
