#include "platform/macos/MacDiagnostics.h"

#include <QDir>

namespace barquell {

QString MacDiagnostics::settingsFile() const {
    return QDir::homePath() + QStringLiteral("/Library/Preferences/%1.plist").arg(_domain);
}

QStringList MacDiagnostics::logCommand() const {
    return {QStringLiteral("/usr/bin/log"), QStringLiteral("show"),
            QStringLiteral("--last"),       QStringLiteral("1d"),
            QStringLiteral("--predicate"),  QStringLiteral("process == \"Barquell\"")};
}

} // namespace barquell
