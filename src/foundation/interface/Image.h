#pragma once

#include <QIcon>

namespace barquell {

/// The image ":/images/NAME.svg" of the program, or the one drawn beforehand in the sizes of
/// ":/images/NAME/". A null icon, and one line in the log, where there is none.
QIcon imageNamed(const QString &name);

} // namespace barquell
