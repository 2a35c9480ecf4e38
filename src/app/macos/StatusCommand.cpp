#include "app/commands/StatusCommand.h"

#include "app/commands/Arguments.h"
#include "app/commands/Report.h"
#include "app/macos/Findings.h"

namespace barquell {

namespace {

QString yesOrNo(bool yes) {
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

} // namespace

int runStatus(const QStringList &arguments) {
    QCommandLineParser parser;
    const QString description = QStringLiteral("Says what is running and switched on.");
    if (const auto done = parseReportArguments(parser, QStringLiteral("status"), description, arguments)) {
        return *done;
    }
    const Findings findings = lookAround();
    if (wantsJson(parser)) {
        printJson({{QStringLiteral("running"), findings.copies > 0},
                   {QStringLiteral("enabled"), findings.enabled}});
    } else {
        print(QStringLiteral("Running:              ") + yesOrNo(findings.copies > 0));
        print(QStringLiteral("Blocking switched on: ") + yesOrNo(findings.enabled));
    }
    return kExitSuccess;
}

} // namespace barquell
