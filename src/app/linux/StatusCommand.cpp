#include "app/commands/StatusCommand.h"

#include "app/commands/Arguments.h"
#include "app/commands/Report.h"
#include "app/linux/Findings.h"

#include <QJsonArray>

namespace barquell {

namespace {

/// What the running copy alone can say; null where it says nothing.
constexpr const char *kOfTheRunningCopy[] = {"effectivelyEnabled", "pauseFlags", "pauseKeysHeld",
                                             "frontmostApplication"};

/// Null where it is not known.
QJsonValue valueOf(const std::optional<bool> &value) {
    return value ? QJsonValue(*value) : QJsonValue();
}

QJsonObject asJson(const Findings &findings) {
    const auto *welcome = findings.welcome();
    QJsonObject status{
        {QStringLiteral("running"), findings.processId.has_value()},
        {QStringLiteral("pid"), findings.processId ? QJsonValue(*findings.processId) : QJsonValue()},
        {QStringLiteral("enabled"), findings.enabled},
        {QStringLiteral("trusted"), findings.isTrusted()},
        {QStringLiteral("grant"), findings.grantState()},
        {QStringLiteral("inFront"), valueOf(findings.inFront())},
        {QStringLiteral("serviceInstalled"), valueOf(findings.service)},
        {QStringLiteral("server"), findings.serverState()},
        {QStringLiteral("tapHolder"), welcome ? QJsonValue(findings.holder()->name()) : QJsonValue()},
        {QStringLiteral("barsKnown"), welcome ? QJsonValue(welcome->barsKnown) : QJsonValue()},
        {QStringLiteral("barsGrabbed"), welcome ? QJsonValue(welcome->barsGrabbed) : QJsonValue()}};
    for (const char *key : kOfTheRunningCopy) {
        const QVariant value = findings.report.value(QString::fromLatin1(key));
        status.insert(QString::fromLatin1(key), QJsonValue::fromVariant(value));
    }
    return status;
}

QString yesOrNo(bool yes) {
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

QString names(const QVariant &list) {
    const QStringList names = list.toStringList();
    return names.isEmpty() ? QStringLiteral("none") : names.join(QStringLiteral(", "));
}

QString frontmost(const QVariantMap &report) {
    if (!report.value(QStringLiteral("knowsFrontmostApplication")).toBool()) {
        return QStringLiteral("cannot be known here");
    }
    const QString identifier = report.value(QStringLiteral("frontmostApplication")).toString();
    return identifier.isEmpty() ? QStringLiteral("none with an identifier") : identifier;
}

void printReport(const QVariantMap &report) {
    const bool inForce = report.value(QStringLiteral("effectivelyEnabled")).toBool();
    print(QStringLiteral("Blocking in force:    ") + yesOrNo(inForce));
    print(QStringLiteral("Paused by:            ") + names(report.value(QStringLiteral("pauseFlags"))));
    print(QStringLiteral("Pause keys held:      ") + names(report.value(QStringLiteral("pauseKeysHeld"))));
    print(QStringLiteral("In front:             ") + frontmost(report));
}

void printStatus(const Findings &findings) {
    const auto *welcome = findings.welcome();
    const QString unknown = QStringLiteral("unknown");
    const auto &processId = findings.processId;
    print(QStringLiteral("Running:              ") +
          (processId ? QStringLiteral("yes, process %1").arg(*processId) : QStringLiteral("no")));
    print(QStringLiteral("Blocking switched on: ") + yesOrNo(findings.enabled));
    print(QStringLiteral("Trusted to filter:    ") + yesOrNo(findings.isTrusted()));
    if (!findings.report.isEmpty()) {
        printReport(findings.report);
    }
    print(QStringLiteral("Grant of this user:   ") + findings.grantState());
    print(QStringLiteral("This user in front:   ") +
          (findings.inFront() ? yesOrNo(*findings.inFront()) : unknown));
    print(QStringLiteral("Installed as service: ") +
          (findings.service ? yesOrNo(*findings.service) : QStringLiteral("there is no systemd")));
    print(QStringLiteral("Tap server:           ") + findings.serverState());
    print(QStringLiteral("The tap belongs to:   ") + (welcome ? findings.holder()->name() : unknown));
    print(QStringLiteral("Touch Bars:           ") +
          (welcome ? QString::number(welcome->barsKnown) : unknown));
    print(QStringLiteral("Held by the tap:      ") +
          (welcome ? QString::number(welcome->barsGrabbed) : unknown));
}

} // namespace

int runStatus(const QStringList &arguments) {
    QCommandLineParser parser;
    const QString description = QStringLiteral("Says what is running, trusted, held back and held.");
    if (const auto done = parseReportArguments(parser, QStringLiteral("status"), description, arguments)) {
        return *done;
    }
    const Findings findings = lookAround();
    if (wantsJson(parser)) {
        printJson(asJson(findings));
    } else {
        printStatus(findings);
    }
    return kExitSuccess;
}

} // namespace barquell
