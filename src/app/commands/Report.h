#pragma once

#include <QCommandLineParser>
#include <QJsonObject>
#include <QStringList>

#include <optional>

namespace barquell {

/// Parses the arguments of a command that takes no words but `--json`; see parseArguments().
std::optional<int> parseReportArguments(QCommandLineParser &parser, const QString &command,
                                        const QString &description, const QStringList &arguments);

bool wantsJson(const QCommandLineParser &parser);

/// One line on standard output.
void print(const QString &text);
void printJson(const QJsonObject &object);

} // namespace barquell
