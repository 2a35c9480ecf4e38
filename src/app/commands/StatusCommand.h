#pragma once

#include <QStringList>

namespace barquell {

/// `barquell status`: what is running, trusted and grabbed.
int runStatus(const QStringList &arguments);

/// `barquell doctor`: checks what the program needs and says what mends what is missing. Fails where
/// something is.
int runDoctor(const QStringList &arguments);

} // namespace barquell
