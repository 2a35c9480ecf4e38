#pragma once

#include <QStringList>

namespace barquell {

/// `barquell toggle` and `barquell active on|off`: the two script commands at the prompt, on the platform's
/// settings. What they store counts at the next start.
int runToggle(const QStringList &arguments);
int runActive(const QStringList &arguments);

} // namespace barquell
