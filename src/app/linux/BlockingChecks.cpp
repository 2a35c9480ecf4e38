#include "app/linux/Checks.h"
#include "app/linux/Findings.h"
#include "platform/linux/FileSettingsStore.h"

#include <QFileInfo>

namespace barquell {

namespace {

constexpr const char *kByHand = "sudo barquell-tapd --group $(id -gn)";

/// Where systemd has the socket, the server comes with its first client.
Check checkService(bool installed) {
    return {QStringLiteral("the tap server is installed as a service"), installed,
            installPackage() + QStringLiteral("; or run the server by hand: ") + QLatin1String(kByHand)};
}

/// The way to the server: the first thing that fails hides what lies behind it.
Check checkServer(const Findings &findings) {
    const auto *why = std::get_if<ProbeFailure>(&findings.server);
    if (why && *why == ProbeFailure::NotGranted && findings.grant.state != grant::State::Held) {
        return {QStringLiteral("the tap server is there"), true, {}}; // it was not asked
    }
    if (!why || *why == ProbeFailure::NotGranted) {
        return {QStringLiteral("the tap server answers this user"), true, {}};
    }
    const bool installed = findings.service.value_or(false);
    const QString byHand = QLatin1String(kByHand);
    switch (*why) {
    case ProbeFailure::Absent:
        return {
            QStringLiteral("the tap server is there"), false,
            QStringLiteral("start it: ") +
                (installed ? QStringLiteral("sudo systemctl enable --now barquell-tapd.socket") : byHand)};
    case ProbeFailure::Forbidden:
        return {QStringLiteral("this user may speak to the tap server"), false,
                installed ? QStringLiteral("sudo systemctl restart barquell-tapd.socket")
                          : QStringLiteral("start it for a group of this user: ") + byHand};
    case ProbeFailure::Silent:
    case ProbeFailure::Refused:
    case ProbeFailure::NotGranted:
        break;
    }
    return {QStringLiteral("the tap server answers"), false,
            installed ? QStringLiteral("sudo systemctl restart barquell-tapd.service barquell-tapd.socket")
                      : QStringLiteral("end it and start it again: sudo pkill -x barquell-tapd; ") + byHand};
}

/// The file says it, and the server where it answers: it may keep its grants elsewhere.
Check checkGrant(const Findings &findings) {
    const auto *why = std::get_if<ProbeFailure>(&findings.server);
    const bool refused = why && *why == ProbeFailure::NotGranted;
    QString what = QStringLiteral("this user may filter the Touch Bar");
    if (findings.grant.state == grant::State::Invalid) {
        what += QStringLiteral(" (the grant does not hold: %1)")
                    .arg(QString::fromUtf8(findings.grant.problem.data(),
                                           static_cast<qsizetype>(findings.grant.problem.size())));
    }
    const QString inTheWindow =
        findings.hasDisplay ? QStringLiteral("barquell show, and allow it there; or: ") : QString();
    return {what, findings.grant.state == grant::State::Held && !refused,
            inTheWindow + QStringLiteral("sudo barquell-tapd --grant $(id -un)")};
}

Check checkHolder(const TapHolder &holder) {
    if (holder.isOurs()) {
        return {QStringLiteral("the tap belongs to Barquell"), true, {}};
    }
    return {QStringLiteral("the tap belongs to Barquell, not to ") + holder.name(), false, holder.mend()};
}

/// The file may be missing, but not be there and closed to us.
Check checkSettings() {
    const QString path = FileSettingsStore::defaultPath();
    const QFileInfo file(path);
    QFileInfo folder(file.path());
    while (!folder.exists() && folder.filePath() != folder.path()) {
        folder = QFileInfo(folder.path());
    }
    const bool good = folder.isWritable() && (!file.exists() || (file.isReadable() && file.isWritable()));
    return {QStringLiteral("the settings can be read and written"), good,
            QStringLiteral("sudo chown -R $(id -u) '%1'; chmod -R u+rwX '%1'").arg(folder.filePath())};
}

} // namespace

QString installPackage() {
    return QStringLiteral(
        "in Barquell's folder: tools/package && sudo apt install ./build/packages/barquell_*.deb");
}

QList<Check> checkBlocking(const Findings &findings) {
    QList<Check> checks{
        checkSettings(),
        checkServer(findings),
        checkGrant(findings),
        {QStringLiteral("blocking is switched on"), findings.enabled,
         QStringLiteral("barquell defaults write Enabled -bool true")},
        {QStringLiteral("Barquell is running"), findings.processId.has_value(), QStringLiteral("barquell &")},
    };
    if (findings.service) {
        checks.insert(1, checkService(*findings.service));
    }
    const auto *welcome = findings.welcome();
    if (!welcome) {
        return checks;
    }
    checks.append({QStringLiteral("this user is the one in front"), *findings.inFront(),
                   QStringLiteral("loginctl activate $XDG_SESSION_ID")});
    if (findings.enabled && findings.processId) {
        checks.append(checkHolder(*findings.holder()));
    }
    checks.append({QStringLiteral("the kernel knows a Touch Bar"), welcome->barsKnown > 0,
                   QStringLiteral("nothing to filter on this machine; try: barquell replay FILE")});
    if (*findings.inFront() && welcome->barsKnown > 0 && findings.enabled && findings.processId) {
        checks.append({QStringLiteral("the Touch Bar is held by the tap"),
                       welcome->barsGrabbed == welcome->barsKnown,
                       QStringLiteral("lift every finger from it; no other program may hold it")});
    }
    return checks;
}

} // namespace barquell
