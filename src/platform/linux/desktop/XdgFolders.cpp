#include "platform/linux/desktop/XdgFolders.h"

#include <QDir>

namespace barquell {

namespace {

QString environmentOr(const char *variable, const QString &fallback) {
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? fallback : value;
}

QStringList below(const QString &home, const QString &shared, const QString &subfolder) {
    QStringList folders;
    for (const QString &folder : QStringList(home) + shared.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        folders.append(QDir::cleanPath(folder + QLatin1Char('/') + subfolder));
    }
    return folders;
}

} // namespace

QStringList xdgDataFolders(const QString &subfolder) {
    return below(environmentOr("XDG_DATA_HOME", QDir::homePath() + QStringLiteral("/.local/share")),
                 environmentOr("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share")), subfolder);
}

QStringList xdgConfigFolders(const QString &subfolder) {
    return below(environmentOr("XDG_CONFIG_HOME", QDir::homePath() + QStringLiteral("/.config")),
                 environmentOr("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg")), subfolder);
}

} // namespace barquell
