#pragma once

#include <QString>

#include <functional>

namespace barquell {

/// One line a failure or a change of state, to the system log and standard error. Any thread; a sink may log.
void log(const QString &line);

/// Where the lines go instead; an empty sink restores the default. For tools whose standard error is read by
/// a person at a prompt, and for tests.
using LogSink = std::function<void(const QString &line)>;
void setLogSink(LogSink sink);

/// Standard error alone, as a tool says it: "barquell: line".
void logToStandardError(const QString &line);

inline constexpr qsizetype kLongestLine = 1000;
inline constexpr qsizetype kLongestQuote = 100;

/// The text as it may stand in one line of a terminal or of a log, wherever it is from: what would end the
/// line, steer a terminal or turn the order of the letters becomes '?', and what is longer than the limit
/// ends in an ellipsis. Both of the above clean what they are given; who quotes a file or a user's words does
/// it with kLongestQuote, lest the quotation push the rest of the line out.
QString cleanLine(const QString &text, qsizetype limit = kLongestLine);

} // namespace barquell
