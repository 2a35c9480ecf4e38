#include "app/linux/Checks.h"
#include "app/linux/Findings.h"
#include "platform/linux/FileSettingsStore.h"

#include <QFileInfo>

namespace barquell {

namespace {

/// The way to the server: the first thing that fails hides what lies behind it.
Check checkServer(const Findings &findings) {
    const QString start = QStringLiteral("sudo barquell-tapd --group $(id -gn)");
    const auto *why = std::get_if<ProbeFailure>(&findings.server);
    if (!why) {
        return {QStringLiteral("the tap server answers this user"), true, {}};
    }
    switch (*why) {
    case ProbeFailure::Absent:
        return {QStringLiteral("the tap server is there"), false, QStringLiteral("start it: ") + start};
    case ProbeFailure::Forbidden:
        return {QStringLiteral("this user may speak to the tap server"), false,
                QStringLiteral("start it for a group of this user: ") + start};
    case ProbeFailure::NotGranted:
        return {QStringLiteral("this user may filter the Touch Bar"), false,
                QStringLiteral("sudo barquell-tapd --grant $(id -un)")};
    case ProbeFailure::Silent:
    case ProbeFailure::Refused:
        break;
    }
    return {QStringLiteral("the tap server answers"), false,
            QStringLiteral("end it and start it again: sudo pkill -x barquell-tapd; ") + start};
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

QList<Check> checkBlocking(const Findings &findings) {
    QList<Check> checks{
        checkSettings(),
        checkServer(findings),
        {QStringLiteral("blocking is switched on"), findings.enabled,
         QStringLiteral("barquell defaults write Enabled -bool true")},
        {QStringLiteral("Barquell is running"), findings.processId.has_value(), QStringLiteral("barquell &")},
    };
    const auto *welcome = findings.welcome();
    if (!welcome) {
        return checks;
    }
    if (findings.enabled && findings.processId) {
        checks.append(checkHolder(*findings.holder()));
    }
    checks.append({QStringLiteral("the kernel knows a Touch Bar"), welcome->barsKnown > 0,
                   QStringLiteral("nothing to filter on this machine; try: barquell replay FILE")});
    if (welcome->barsKnown > 0 && findings.enabled && findings.processId) {
        checks.append({QStringLiteral("the Touch Bar is held by the tap"),
                       welcome->barsGrabbed == welcome->barsKnown,
                       QStringLiteral("lift every finger from it; no other program may hold it")});
    }
    return checks;
}

} // namespace barquell
