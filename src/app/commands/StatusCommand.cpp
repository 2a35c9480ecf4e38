#include "app/commands/StatusCommand.h"

#include "app/Place.h"
#include "app/RegisteredDefaults.h"
#include "app/commands/Arguments.h"
#include "app/live/RunningCopy.h"
#include "foundation/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/linux/client/ServerProbe.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

namespace barquell {

using namespace std::chrono_literals;

namespace {

/// All that can be known from outside the running program.
struct Findings {
    std::optional<qint64> processId;
    bool enabled = false;
    std::variant<protocol::ServerMessage, ProbeFailure> server;

    const protocol::ServerMessage *welcome() const { return std::get_if<protocol::ServerMessage>(&server); }
    bool isTrusted() const {
        const auto *why = std::get_if<ProbeFailure>(&server);
        return !why || *why == ProbeFailure::Silent || *why == ProbeFailure::Refused;
    }
};

Findings look() {
    installThisMachine();
    UserDefaults settings(platform().settingsStore, UserDefaults::Following::No);
    registerDefaults(settings);
    return {RunningCopy::processId(), settings.boolForKey(QStringLiteral("Enabled")),
            probeServer(tapServerSocket(), 1s)};
}

QString serverState(const Findings &findings) {
    if (findings.welcome()) {
        return QStringLiteral("answers");
    }
    switch (std::get<ProbeFailure>(findings.server)) {
    case ProbeFailure::Absent:
        return QStringLiteral("absent");
    case ProbeFailure::Forbidden:
        return QStringLiteral("forbidden");
    case ProbeFailure::Silent:
        return QStringLiteral("silent");
    case ProbeFailure::Refused:
        break;
    }
    return QStringLiteral("refuses");
}

QString yesOrNo(bool yes) {
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

void print(const QString &text) {
    std::fputs(qUtf8Printable(text + QLatin1Char('\n')), stdout);
}

void printJson(const QJsonObject &object) {
    print(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QJsonObject statusAsJson(const Findings &findings) {
    const auto *welcome = findings.welcome();
    return {{QStringLiteral("running"), findings.processId.has_value()},
            {QStringLiteral("pid"), findings.processId ? QJsonValue(*findings.processId) : QJsonValue()},
            {QStringLiteral("enabled"), findings.enabled},
            {QStringLiteral("trusted"), findings.isTrusted()},
            {QStringLiteral("server"), serverState(findings)},
            {QStringLiteral("barsKnown"), welcome ? QJsonValue(welcome->barsKnown) : QJsonValue()},
            {QStringLiteral("barsGrabbed"), welcome ? QJsonValue(welcome->barsGrabbed) : QJsonValue()}};
}

void printStatus(const Findings &findings) {
    const auto *welcome = findings.welcome();
    const QString unknown = QStringLiteral("unknown");
    print(QStringLiteral("Running:              ") +
          (findings.processId ? QStringLiteral("yes, process %1").arg(*findings.processId)
                              : QStringLiteral("no")));
    print(QStringLiteral("Blocking switched on: ") + yesOrNo(findings.enabled));
    print(QStringLiteral("Trusted to filter:    ") + yesOrNo(findings.isTrusted()));
    print(QStringLiteral("Tap server:           ") + serverState(findings));
    print(QStringLiteral("Touch Bars:           ") +
          (welcome ? QString::number(welcome->barsKnown) : unknown));
    print(QStringLiteral("Held by the tap:      ") +
          (welcome ? QString::number(welcome->barsGrabbed) : unknown));
}

/// One thing that the program needs.
struct Check {
    QString what;
    bool good;
    QString mend; ///< what to do where it is not good
};

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
    case ProbeFailure::Silent:
    case ProbeFailure::Refused:
        break;
    }
    return {QStringLiteral("the tap server answers"), false,
            QStringLiteral("end it and start it again: sudo pkill -x barquell-tapd; ") + start};
}

QList<Check> diagnose(const Findings &findings) {
    QList<Check> checks{
        checkServer(findings),
        {QStringLiteral("blocking is switched on"), findings.enabled,
         QStringLiteral("barquell defaults write Enabled -bool true")},
        {QStringLiteral("Barquell is running"), findings.processId.has_value(), QStringLiteral("barquell &")},
    };
    const auto *welcome = findings.welcome();
    if (!welcome) {
        return checks;
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

QJsonObject asJson(const QList<Check> &checks) {
    QJsonArray array;
    for (const Check &check : checks) {
        array.append(
            QJsonObject{{QStringLiteral("check"), check.what},
                        {QStringLiteral("ok"), check.good},
                        {QStringLiteral("mend"), check.good ? QJsonValue() : QJsonValue(check.mend)}});
    }
    return {{QStringLiteral("checks"), array}};
}

std::optional<int> parseWithJson(QCommandLineParser &parser, const QString &command,
                                 const QString &description, const QStringList &arguments) {
    parser.setApplicationDescription(QLatin1Char('\n') + description);
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print JSON.")});
    if (const auto done = parseArguments(parser, command, arguments)) {
        return done;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return wrongUsage(command, QStringLiteral("takes no words"));
    }
    return std::nullopt;
}

} // namespace

int runStatus(const QStringList &arguments) {
    QCommandLineParser parser;
    if (const auto done =
            parseWithJson(parser, QStringLiteral("status"),
                          QStringLiteral("Says what is running, trusted and held."), arguments)) {
        return *done;
    }
    const Findings findings = look();
    if (parser.isSet(QStringLiteral("json"))) {
        printJson(statusAsJson(findings));
    } else {
        printStatus(findings);
    }
    return kExitSuccess;
}

int runDoctor(const QStringList &arguments) {
    QCommandLineParser parser;
    if (const auto done = parseWithJson(
            parser, QStringLiteral("doctor"),
            QStringLiteral("Checks what Barquell needs, and says what mends what is missing."), arguments)) {
        return *done;
    }
    const QList<Check> checks = diagnose(look());
    if (parser.isSet(QStringLiteral("json"))) {
        printJson(asJson(checks));
    }
    bool allGood = true;
    for (const Check &check : checks) {
        allGood = allGood && check.good;
        if (!parser.isSet(QStringLiteral("json"))) {
            print((check.good ? QStringLiteral("ok       ") : QStringLiteral("MISSING  ")) + check.what);
            if (!check.good) {
                print(QStringLiteral("         ") + check.mend);
            }
        }
    }
    return allGood ? kExitSuccess : kExitFailure;
}

} // namespace barquell
