#include "app/commands/RevokeCommand.h"

#include "app/commands/Arguments.h"
#include "app/commands/Report.h"
#include "app/linux/TapServerSocket.h"
#include "platform/linux/client/GrantOutcome.h"
#include "platform/linux/client/GrantTrust.h"

#include <unistd.h>

namespace barquell {

namespace {

QString mend(GrantOutcome outcome) {
    const QString byHand = QStringLiteral("; by hand: sudo barquell-tapd --withdraw $(id -un)");
    return outcome == GrantOutcome::Withdrawn ? QString() : byHand;
}

int say(bool done, const QString &text, bool json) {
    if (json) {
        printJson({{QStringLiteral("withdrawn"), done}, {QStringLiteral("said"), text}});
    } else if (done) {
        print(text);
    } else {
        return failure(text);
    }
    return done ? kExitSuccess : kExitFailure;
}

} // namespace

int runRevoke(const QStringList &arguments) {
    QCommandLineParser parser;
    const QString description =
        QStringLiteral("Gives up this user's permission to filter; touches pass at once.");
    if (const auto done = parseReportArguments(parser, QStringLiteral("revoke"), description, arguments)) {
        return *done;
    }
    if (thisMachinesGrants().read(::getuid()).state == grant::State::None) {
        return say(true, QStringLiteral("This user has no permission to filter"), wantsJson(parser));
    }
    const GrantOutcome outcome = withdrawGrant(tapServerSocket(), kServerLimit);
    return say(outcome == GrantOutcome::Withdrawn, grantOutcomeText(outcome) + mend(outcome),
               wantsJson(parser));
}

} // namespace barquell
