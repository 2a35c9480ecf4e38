#include "app/commands/DoctorCommand.h"

#include "app/commands/Arguments.h"
#include "app/commands/Check.h"
#include "app/commands/Report.h"

#include <QJsonArray>

#include <algorithm>

namespace barquell {

namespace {

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

void printChecks(const QList<Check> &checks) {
    for (const Check &check : checks) {
        print((check.good ? QStringLiteral("ok       ") : QStringLiteral("MISSING  ")) + check.what);
        if (!check.good) {
            print(QStringLiteral("         ") + check.mend);
        }
    }
}

} // namespace

int runDoctor(const QStringList &arguments) {
    QCommandLineParser parser;
    const QString description =
        QStringLiteral("Checks what Barquell needs, and says what mends what is missing.");
    if (const auto done = parseReportArguments(parser, QStringLiteral("doctor"), description, arguments)) {
        return *done;
    }
    const QList<Check> checks = checkEverything();
    if (wantsJson(parser)) {
        printJson(asJson(checks));
    } else {
        printChecks(checks);
    }
    const bool allGood =
        std::all_of(checks.begin(), checks.end(), [](const Check &check) { return check.good; });
    return allGood ? kExitSuccess : kExitFailure;
}

} // namespace barquell
