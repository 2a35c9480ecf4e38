#pragma once

#include <QString>

#include <optional>

namespace barquell {

/// Whether the tap server's socket is installed as a unit of the service manager (systemd), which starts the
/// server when a client comes; nothing where no service manager runs. The root is "/" but in tests.
std::optional<bool> isServiceInstalled(const QString &root = QStringLiteral("/"));

} // namespace barquell
