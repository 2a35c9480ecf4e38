#pragma once

#include "app/linux/TapHolder.h"
#include "platform/linux/client/GrantTrust.h"
#include "platform/linux/client/ServerProbe.h"
#include "platform/linux/session/RunningProgram.h"

#include <QVariantMap>

#include <optional>

namespace barquell {

/// All that can be known of the program from outside of it: what the running copy says of itself, the
/// settings, and how the tap server is.
struct Findings {
    std::optional<qint64> processId; ///< of the copy that runs
    RunningProgram::Outcome asked = RunningProgram::Outcome::NoBus;
    QVariantMap report;   ///< see statusReport(); empty where `asked` is not Done
    bool enabled = false; ///< the settings want blocking
    bool hasDisplay = false;
    bool launchAtStart = false;  ///< the settings want the program to start at login
    grant::Reading grant;        ///< this user's
    std::optional<bool> service; ///< see isServiceInstalled()
    std::variant<protocol::ServerMessage, ProbeFailure> server;

    const protocol::ServerMessage *welcome() const { return std::get_if<protocol::ServerMessage>(&server); }
    std::optional<TapHolder> holder() const; ///< where the server answers
    bool isTrusted() const;

    /// This user's grant in a word: "held", "none" or "invalid".
    QString grantState() const;

    /// Whether this user is the one in front; nothing where the server does not say.
    std::optional<bool> inFront() const;

    /// "answers", or in a word why not.
    QString serverState() const;
};

/// Looks; waits for the tap server and the running copy a few seconds at most.
Findings lookAround();

} // namespace barquell
