#pragma once

#include <QSizeF>
#include <QString>

namespace barquell {

/// "{480, 320.5}": how sizes are stored. macOS: NSStringFromSize.
QString stringFromSize(const QSizeF &size);

/// Reads the first two numbers of any text; what is missing is 0. macOS: NSSizeFromString.
QSizeF sizeFromString(const QString &text);

} // namespace barquell
