#pragma once

#include "app/commands/Check.h"

namespace barquell {

struct Findings;

/// The advice to make the package and install it.
QString installPackage();

/// What blocking needs: the settings, the tap server and the grant to use it, the running program, a bar.
QList<Check> checkBlocking(const Findings &findings);

/// What the program needs of the desktop: a display, a window manager that tells what is in front, a bus,
/// somebody who shows status items, and the login item if the user wants it.
QList<Check> checkDesktop(const Findings &findings);

} // namespace barquell
