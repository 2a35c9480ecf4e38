#include "app/linux/Findings.h"

#include "app/Place.h"
#include "app/RegisteredDefaults.h"
#include "app/linux/ServiceState.h"
#include "app/linux/TapServerSocket.h"
#include "foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/linux/session/RunningCopy.h"

#include <unistd.h>

namespace barquell {

namespace {

void readSettings(Findings &findings) {
    UserDefaults settings(platform().settingsStore, UserDefaults::Following::No);
    registerDefaults(settings);
    findings.enabled = settings.boolForKey(QStringLiteral("Enabled"));
    findings.launchAtStart = settings.boolForKey(QStringLiteral("LaunchAtStart"));
}

/// Who has no grant would only be told so, by a server that may have to be started for that. So the way there
/// is all that is looked at.
std::variant<protocol::ServerMessage, ProbeFailure> askAs(const grant::Reading &grant) {
    const QString socket = tapServerSocket();
    if (grant.state == grant::State::Held) {
        return probeServer(socket, kServerLimit);
    }
    return obstacleTo(socket).value_or(ProbeFailure::NotGranted);
}

} // namespace

std::optional<TapHolder> Findings::holder() const {
    return welcome() ? std::optional(TapHolder(*welcome(), processId)) : std::nullopt;
}

/// The running copy knows best: a simulated bar has a switch of its own.
bool Findings::isTrusted() const {
    const QVariant reported = report.value(QStringLiteral("trusted"));
    if (reported.isValid()) {
        return reported.toBool();
    }
    return grant.state == grant::State::Held;
}

QString Findings::grantState() const {
    switch (grant.state) {
    case grant::State::Held:
        return QStringLiteral("held");
    case grant::State::Invalid:
        return QStringLiteral("invalid");
    case grant::State::None:
        break;
    }
    return QStringLiteral("none");
}

std::optional<bool> Findings::inFront() const {
    return welcome() ? std::optional(welcome()->inFront != 0) : std::nullopt;
}

QString Findings::serverState() const {
    if (welcome()) {
        return QStringLiteral("answers");
    }
    switch (std::get<ProbeFailure>(server)) {
    case ProbeFailure::Absent:
        return QStringLiteral("absent");
    case ProbeFailure::Forbidden:
        return QStringLiteral("forbidden");
    case ProbeFailure::Silent:
        return QStringLiteral("silent");
    case ProbeFailure::NotGranted:
        return QStringLiteral("not granted");
    case ProbeFailure::Refused:
        break;
    }
    return QStringLiteral("refuses");
}

Findings lookAround() {
    installThisMachine();
    Findings findings;
    RunningProgram program;
    findings.asked = program.status(findings.report);
    findings.processId = program.processId();
    if (!findings.processId) {
        findings.processId = RunningCopy::processId(); // a session without a bus
    }
    readSettings(findings);
    findings.hasDisplay = hasDisplay();
    findings.grant = thisMachinesGrants().read(::getuid());
    findings.service = isServiceInstalled();
    findings.server = askAs(findings.grant);
    return findings;
}

} // namespace barquell
