#pragma once

#include <QStringList>

namespace barquell {

/// `barquell doctor`: checks what the program needs and says what mends what is missing. Fails where
/// something is.
int runDoctor(const QStringList &arguments);

} // namespace barquell
