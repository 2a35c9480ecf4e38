#pragma once

#include <QCommandLineParser>
#include <QStringList>

#include <optional>

namespace barquell {

/// Exit codes of every command.
inline constexpr int kExitSuccess = 0;
inline constexpr int kExitFailure = 1; ///< said in one line on standard error
inline constexpr int kExitUsage = 2;   ///< likewise, with the way to the help

/// Parses a command's arguments (its own name first) and adds `--help`. Where there is nothing left to do,
/// since help was asked for or the words are off, that has been said and the exit code is the result.
std::optional<int> parseArguments(QCommandLineParser &parser, const QString &command,
                                  const QStringList &arguments);

/// Says in one line how the command is used wrongly.
int wrongUsage(const QString &command, const QString &complaint);

/// Says in one line why a command failed.
int failure(const QString &complaint);

} // namespace barquell
