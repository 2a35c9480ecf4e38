#pragma once

#include <QString>

#include <functional>

namespace barquell {

/// One line a failure or a change of state, to the system log and standard error. Any thread.
void log(const QString &line);

/// Where the lines go instead; an empty sink restores the default. For tools whose standard error is read by
/// a person at a prompt, and for tests.
using LogSink = std::function<void(const QString &line)>;
void setLogSink(LogSink sink);

/// Standard error alone, as a tool says it: "barquell: line".
void logToStandardError(const QString &line);

} // namespace barquell
