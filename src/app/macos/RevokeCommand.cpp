#include "app/commands/RevokeCommand.h"

#include "app/commands/Arguments.h"

namespace barquell {

int runRevoke(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("\nSays how the permission to filter is withdrawn."));
    if (const auto done = parseArguments(parser, QStringLiteral("revoke"), arguments)) {
        return *done;
    }
    return failure(QStringLiteral("the system keeps the permission; withdraw it in its privacy settings, or: "
                                  "tccutil reset Accessibility com.vexolith.barquell"));
}

} // namespace barquell
