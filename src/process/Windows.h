#pragma once

#include <QString>

class QWidget;

namespace barquell {

/// Whether this process can show windows at all; in a place without a display it runs without.
bool hasWindows();

/// Posted locally when any window of the program closes, with the window as its object.
QString windowWillCloseNotification();

/// Begins to post it; nothing where the program has no windows. Called again it changes nothing. Main thread
/// only.
void announceClosingWindows();

/// Could the user close the window by its own button now? Not where it has none, and not while a sheet or
/// another modal child of it is open.
bool hasEnabledCloseButton(const QWidget &window);

} // namespace barquell
