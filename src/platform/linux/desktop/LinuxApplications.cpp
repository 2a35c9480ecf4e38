#include "platform/linux/desktop/LinuxApplications.h"

#include <QDir>
#include <QFileInfo>
#include <QIcon>

namespace barquell {

namespace {

/// What entries call an icon: a name of the theme, sometimes with the ending of a file, or a file.
QIcon iconNamed(const QString &name) {
    const QIcon any = QIcon::fromTheme(QStringLiteral("application-x-executable"));
    if (QDir::isAbsolutePath(name)) {
        return QFileInfo(name).isFile() ? QIcon(name) : any;
    }
    if (QIcon::hasThemeIcon(name)) {
        return QIcon::fromTheme(name);
    }
    return QIcon::fromTheme(QFileInfo(name).completeBaseName(), any);
}

} // namespace

/// An empty entry where there is none.
DesktopEntry LinuxApplications::entryOf(const QString &path) const {
    const auto entry = DesktopEntries::entryInFile(path, _entries.folders());
    return entry && !entry->isHidden ? *entry : DesktopEntry();
}

QString LinuxApplications::pathOfApplication(const QString &bundleIdentifier) const {
    const DesktopEntry *entry = _entries.entryWithId(bundleIdentifier);
    return entry ? entry->path : QString();
}

QString LinuxApplications::bundleIdentifier(const QString &path) const {
    return entryOf(path).id;
}

QString LinuxApplications::displayName(const QString &path) const {
    return entryOf(path).name;
}

QString LinuxApplications::ownName(const QString &path) const {
    const DesktopEntry entry = entryOf(path);
    return entry.name.isEmpty() ? entry.program() : entry.name;
}

QIcon LinuxApplications::icon(const QString &path) const {
    return QFileInfo::exists(path) ? iconNamed(entryOf(path).icon) : QIcon();
}

QString LinuxApplications::folder() const {
    QString usual = QStringLiteral("/usr/share/applications");
    if (_entries.folders().contains(usual) && QFileInfo(usual).isDir()) {
        return usual;
    }
    for (const QString &folder : _entries.folders()) {
        if (QFileInfo(folder).isDir()) {
            return folder;
        }
    }
    return QDir::homePath();
}

} // namespace barquell
