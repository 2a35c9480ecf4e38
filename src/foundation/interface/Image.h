#pragma once

#include <QIcon>

namespace barquell {

/// The image ":/images/NAME.svg" of the program. A null icon, and one line in the log, where there is none.
QIcon imageNamed(const QString &name);

} // namespace barquell
