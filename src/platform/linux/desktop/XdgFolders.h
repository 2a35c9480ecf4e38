#pragma once

#include <QStringList>

namespace barquell {

/// Where something of a kind lies, the user's folder first, by the variables of the XDG Base Directory
/// Specification 0.8: XDG_DATA_HOME and XDG_DATA_DIRS, or the same with CONFIG.
QStringList xdgDataFolders(const QString &subfolder);
QStringList xdgConfigFolders(const QString &subfolder);

} // namespace barquell
