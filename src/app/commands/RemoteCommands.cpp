#include "app/commands/RemoteCommands.h"

#include "app/commands/Arguments.h"
#include "platform/linux/session/RunningProgram.h"

namespace barquell {

namespace {

using Outcome = RunningProgram::Outcome;

std::optional<int> parse(const QString &command, const QString &description, const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QLatin1Char('\n') + description);
    if (const auto done = parseArguments(parser, command, arguments)) {
        return done;
    }
    return parser.positionalArguments().isEmpty()
               ? std::nullopt
               : std::optional(wrongUsage(command, QStringLiteral("takes no words")));
}

int finish(Outcome outcome) {
    switch (outcome) {
    case Outcome::Done:
        return kExitSuccess;
    case Outcome::NoBus:
        return failure(QStringLiteral("There is no session bus to reach the running copy by"));
    case Outcome::NotRunning:
        return failure(QStringLiteral("Barquell is not running"));
    case Outcome::Silent:
        return failure(QStringLiteral("The running copy does not answer"));
    case Outcome::Refused:
        break;
    }
    return failure(QStringLiteral("The running copy does not know how"));
}

} // namespace

int runShow(const QStringList &arguments) {
    const QString description = QStringLiteral("Lets the running copy show itself.");
    if (const auto done = parse(QStringLiteral("show"), description, arguments)) {
        return *done;
    }
    return finish(RunningProgram().show());
}

int runQuit(const QStringList &arguments) {
    const QString description = QStringLiteral("Ends every running copy; touches flow again.");
    if (const auto done = parse(QStringLiteral("quit"), description, arguments)) {
        return *done;
    }
    return finish(RunningProgram().quit());
}

} // namespace barquell
