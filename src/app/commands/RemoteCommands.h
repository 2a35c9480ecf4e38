#pragma once

#include <QStringList>

namespace barquell {

/// `barquell show`: the running copy shows itself.
int runShow(const QStringList &arguments);

/// `barquell quit`: every running copy ends.
int runQuit(const QStringList &arguments);

} // namespace barquell
