#pragma once

#include <QString>

namespace barquell {

/// What the command line asks of the copies of the program that run. The answer is a complaint in one line,
/// empty where all went well.
QString showRunningCopy();
QString endRunningCopies();

} // namespace barquell
