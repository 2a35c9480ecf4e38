#include "platform/linux/client/GrantOutcome.h"

namespace barquell {

using protocol::Refusal;
using protocol::ServerMessageType;

namespace {

GrantOutcome outcomeOf(Refusal reason) {
    switch (reason) {
    case Refusal::Denied:
        return GrantOutcome::Denied;
    case Refusal::NoAnswer:
        return GrantOutcome::NoAnswer;
    case Refusal::Busy:
        return GrantOutcome::Busy;
    case Refusal::Failed:
        return GrantOutcome::Failed;
    case Refusal::Version:
    case Refusal::Malformed:
        return GrantOutcome::OtherVersion;
    case Refusal::NotGranted:
        break;
    }
    return GrantOutcome::Silent;
}

} // namespace

GrantOutcome grantOutcome(const protocol::ServerMessage &answer) {
    switch (answer.type) {
    case ServerMessageType::Granted:
        return GrantOutcome::Granted;
    case ServerMessageType::Withdrawn:
        return GrantOutcome::Withdrawn;
    case ServerMessageType::Refused:
        return outcomeOf(answer.reason);
    default:
        return GrantOutcome::Silent;
    }
}

QString grantOutcomeText(GrantOutcome outcome) {
    switch (outcome) {
    case GrantOutcome::Granted:
        return QStringLiteral("This user may filter the Touch Bar");
    case GrantOutcome::Withdrawn:
        return QStringLiteral("This user may no longer filter the Touch Bar");
    case GrantOutcome::Denied:
        return QStringLiteral("This user may not filter the Touch Bar: it was denied");
    case GrantOutcome::NoAnswer:
        return QStringLiteral(
            "This user may not filter the Touch Bar: the system asked nobody, or nobody answered");
    case GrantOutcome::Busy:
        return QStringLiteral("Whether this user may filter the Touch Bar is being asked already");
    case GrantOutcome::Failed:
        return QStringLiteral("The tap server could not change the grant; its log says why");
    case GrantOutcome::Unreachable:
        return QStringLiteral("The tap server cannot be reached, so the grant stays as it is");
    case GrantOutcome::Silent:
        return QStringLiteral("The tap server did not answer; the grant may have stayed as it is");
    case GrantOutcome::OtherVersion:
        break;
    }
    return QStringLiteral("The tap server is of another version, so the grant stays as it is");
}

GrantOutcome withdrawGrant(const QString &socketPath, std::chrono::milliseconds limit) {
    const auto answer = askServer(socketPath, protocol::ClientMessageType::WithdrawGrant, limit);
    if (const auto *message = std::get_if<protocol::ServerMessage>(&answer)) {
        return grantOutcome(*message);
    }
    const bool isThere = std::get<ProbeFailure>(answer) == ProbeFailure::Silent;
    return isThere ? GrantOutcome::Silent : GrantOutcome::Unreachable;
}

} // namespace barquell
