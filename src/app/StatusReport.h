#pragma once

#include <QVariantMap>

namespace barquell {

/// What the running program says of itself, as it goes over the session bus: "enabled", "trusted",
/// "effectivelyEnabled" (bool), "pauseFlags", "pauseKeysHeld" (lists of names), "hasStatusBar",
/// "knowsFrontmostApplication" (bool) and "frontmostApplication" (its bundle identifier; empty where there is
/// none). Main thread only.
QVariantMap statusReport();

} // namespace barquell
