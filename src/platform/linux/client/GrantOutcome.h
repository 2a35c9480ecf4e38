#pragma once

#include "platform/linux/client/ServerProbe.h"

#include <QString>

namespace barquell {

/// What became of a wish about this user's grant.
enum class GrantOutcome {
    Granted,
    Withdrawn,
    Denied,       ///< a person said no, or the system did without asking
    NoAnswer,     ///< nobody could be asked, or nobody answered in time
    Busy,         ///< this user, or too many others, are being asked already
    Failed,       ///< the server could not write or remove the grant
    Unreachable,  ///< there is no server, or it is not for us
    Silent,       ///< it does not answer, or went away meanwhile
    OtherVersion, ///< it does not understand this program
};

/// What the server's answer means; Silent for one that is no answer to such a wish.
GrantOutcome grantOutcome(const protocol::ServerMessage &answer);

/// The line for the log or a terminal.
QString grantOutcomeText(GrantOutcome outcome);

/// Withdraws this user's grant and waits for it until the limit. Any thread.
GrantOutcome withdrawGrant(const QString &socketPath, std::chrono::milliseconds limit);

} // namespace barquell
