#include "app/commands/Report.h"

#include "app/commands/Arguments.h"
#include "foundation/Log.h"

#include <QJsonDocument>

#include <cstdio>

namespace barquell {

namespace {

QString jsonOption() {
    return QStringLiteral("json");
}

} // namespace

std::optional<int> parseReportArguments(QCommandLineParser &parser, const QString &command,
                                        const QString &description, const QStringList &arguments) {
    parser.setApplicationDescription(QLatin1Char('\n') + description);
    parser.addOption({jsonOption(), QStringLiteral("Print JSON.")});
    if (const auto done = parseArguments(parser, command, arguments)) {
        return done;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return wrongUsage(command, QStringLiteral("takes no words"));
    }
    return std::nullopt;
}

bool wantsJson(const QCommandLineParser &parser) {
    return parser.isSet(jsonOption());
}

void print(const QString &text) {
    std::fputs(qUtf8Printable(cleanLine(text) + QLatin1Char('\n')), stdout);
}

void printJson(const QJsonObject &object) {
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    std::fputs((json + '\n').constData(), stdout);
}

} // namespace barquell
