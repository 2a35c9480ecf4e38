#include "app/commands/RemoteCommands.h"

#include "app/commands/Arguments.h"
#include "app/commands/OtherCopies.h"

namespace barquell {

namespace {

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

int finish(const QString &complaint) {
    return complaint.isEmpty() ? kExitSuccess : failure(complaint);
}

} // namespace

int runShow(const QStringList &arguments) {
    const QString description = QStringLiteral("Lets the running copy show itself.");
    if (const auto done = parse(QStringLiteral("show"), description, arguments)) {
        return *done;
    }
    return finish(showRunningCopy());
}

int runQuit(const QStringList &arguments) {
    const QString description = QStringLiteral("Ends every running copy; touches flow again.");
    if (const auto done = parse(QStringLiteral("quit"), description, arguments)) {
        return *done;
    }
    return finish(endRunningCopies());
}

} // namespace barquell
