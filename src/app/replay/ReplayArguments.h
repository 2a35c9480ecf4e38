#pragma once

#include "app/replay/Replay.h"

#include <QString>

namespace barquell::replay {

/// Takes on one "KEY=VALUE": any setting, or the pseudo keys "trusted" and "pauseFlags". true, false, yes and
/// no are booleans, whole numbers integers, a JSON list is a list, everything else is a string. Returns a
/// complaint, empty where all is well.
QString assign(ReplaySettings &settings, const QString &assignment);

} // namespace barquell::replay
