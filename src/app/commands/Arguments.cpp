#include "app/commands/Arguments.h"

#include "foundation/Log.h"

#include <cstdio>

namespace barquell {

std::optional<int> parseArguments(QCommandLineParser &parser, const QString &command,
                                  const QStringList &arguments) {
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help."));
    parser.addOption(help);
    if (!parser.parse(arguments)) {
        return wrongUsage(command, parser.errorText());
    }
    if (parser.isSet(help)) {
        // Qt begins its text with the program's path; ours begins with what a user types.
        QString text = parser.helpText();
        text.replace(0, text.indexOf(QLatin1String(" [options]")),
                     QStringLiteral("Usage: barquell ") + command);
        std::fputs(qUtf8Printable(text), stdout);
        return kExitSuccess;
    }
    return std::nullopt;
}

int wrongUsage(const QString &command, const QString &complaint) {
    QString line = complaint;
    while (line.endsWith(QLatin1Char('.'))) {
        line.chop(1);
    }
    logToStandardError(QStringLiteral("%1 (see 'barquell %2 --help')").arg(line, command).simplified());
    return kExitUsage;
}

int failure(const QString &complaint) {
    logToStandardError(complaint);
    return kExitFailure;
}

} // namespace barquell
