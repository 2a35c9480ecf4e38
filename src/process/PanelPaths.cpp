#include "foundation/UserDefaults.h"
#include "platform/Applications.h"
#include "platform/Platform.h"
#include "process/Helpers.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QUrl>

#include <pwd.h>

namespace barquell {

namespace {

/// nil where the panel has no identifier.
QString keyOf(const QFileDialog &panel) {
    const QString identifier = panel.property("identifier").toString();
    return identifier.isEmpty() ? QString() : identifier + QStringLiteral("LastPath");
}

/// Empty for a user that the system does not know.
QString homeOf(const QString &user) {
    const passwd *entry = ::getpwnam(QFile::encodeName(user).constData());
    return entry ? QFile::decodeName(entry->pw_dir) : QString();
}

/// "~" is the user's home, "~NAME" another's; of a stranger's the path stays as it is.
QString withoutTilde(const QString &path) {
    const QString user = path.section(QLatin1Char('/'), 0, 0).mid(1);
    const QString home = user.isEmpty() ? QDir::homePath() : homeOf(user);
    return home.isEmpty() ? path : home + path.mid(1 + user.size());
}

QString expanded(const QString &path) {
    if (path.startsWith(QLatin1Char('~'))) {
        return withoutTilde(path);
    }
    const bool isApplications = path == QLatin1String("/Applications");
    return isApplications && platform().applications ? platform().applications->folder() : path;
}

} // namespace

bool Helpers::loadLastPathForPanel(QFileDialog &panel, const QString &fallbackPath) {
    const QString key = keyOf(panel);
    if (key.isNull()) {
        return false;
    }
    const QVariant stored = UserDefaults::standard().objectForKey(key);
    const QString path = stored.typeId() == QMetaType::QString ? stored.toString() : expanded(fallbackPath);
    if (path.isEmpty()) {
        return false;
    }
    panel.setDirectoryUrl(QUrl::fromLocalFile(path));
    return true;
}

bool Helpers::saveLastPathForPanel(const QFileDialog &panel) {
    const QString key = keyOf(panel);
    if (key.isNull()) {
        return false;
    }
    UserDefaults::standard().setObject(panel.directoryUrl().toLocalFile(), key);
    return true;
}

} // namespace barquell
