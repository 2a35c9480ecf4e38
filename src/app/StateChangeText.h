#pragma once

#include <QString>

namespace barquell {

/// A change of the blocking state as a person reads it: "in force (the pause keys)". The source is a
/// StateChangeSource.
QString stateChangeText(int source, bool effectivelyEnabled);

} // namespace barquell
