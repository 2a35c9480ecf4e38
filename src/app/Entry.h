#pragma once

#include <functional>

namespace barquell {

/// Lays the program's own values beneath the stored settings, and folds a stored "Active" into "Enabled". To
/// be called once, before anything reads a setting.
void prepareSettings();

/// The program from its first setting to its end, on the installed platform; returns the exit status. What
/// is to begin once everything listens is done then.
int runApplication(const std::function<void()> &onLaunched);

} // namespace barquell
