#include "platform/linux/desktop/DesktopEntries.h"

#include "foundation/Log.h"
#include "platform/linux/desktop/XdgFolders.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace barquell {

namespace {

constexpr int kDeepest = 8;
constexpr int kMostFiles = 20000;

const QString kEnding = QStringLiteral(".desktop");

/// When the folder was changed. A change so young may be followed by another in the same tick of the clock;
/// what is remembered of it then is never equal to what the next look finds.
QDateTime changeOf(const QString &folder) {
    const QDateTime change = QFileInfo(folder).lastModified();
    const bool young = change.isValid() && qAbs(change.msecsTo(QDateTime::currentDateTime())) < 1000;
    return young ? change.addMSecs(-1) : change;
}

/// The id of an entry that lies below one of the folders, subfolders joined with dashes; else its file's
/// name.
QString idOfFile(const QString &path, const QStringList &folders) {
    const QString file = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (const QString &folder : folders) {
        if (file.startsWith(folder + QLatin1Char('/'))) {
            return file.mid(folder.size() + 1)
                .chopped(kEnding.size())
                .replace(QLatin1Char('/'), QLatin1Char('-'));
        }
    }
    return QFileInfo(path).fileName().chopped(kEnding.size());
}

} // namespace

QStringList DesktopEntries::standardFolders() {
    QStringList folders = xdgDataFolders(QStringLiteral("applications"));
    folders << xdgDataFolders(QStringLiteral("flatpak/exports/share/applications")).constFirst()
            << QStringLiteral("/var/lib/flatpak/exports/share/applications")
            << QStringLiteral("/var/lib/snapd/desktop/applications");
    folders.removeDuplicates();
    return folders;
}

DesktopEntries::DesktopEntries(QStringList folders) : _folders(std::move(folders)) {}

const DesktopEntry *DesktopEntries::entryWithId(const QString &id) {
    refresh();
    const auto entry = _entries.constFind(id);
    return entry == _entries.cend() || entry->isHidden ? nullptr : &*entry;
}

const DesktopEntry *DesktopEntries::entryForWindow(const QString &name) {
    refresh();
    const QString id = _windows.value(name, _windowsInAnyCase.value(name.toLower()));
    return id.isEmpty() ? nullptr : entryWithId(id);
}

std::optional<DesktopEntry> DesktopEntries::entryInFile(const QString &path, const QStringList &folders) {
    if (!path.endsWith(kEnding)) {
        return std::nullopt;
    }
    return readDesktopEntry(path, idOfFile(path, folders));
}

void DesktopEntries::refresh() {
    bool changed = _folderChanges.isEmpty();
    for (auto folder = _folderChanges.cbegin(); folder != _folderChanges.cend() && !changed; ++folder) {
        changed = QFileInfo(folder.key()).lastModified() != folder.value();
    }
    if (!changed) {
        return;
    }
    _entries.clear();
    _folderChanges.clear();
    _visited.clear();
    _filesSeen = 0;
    for (const QString &folder : _folders) {
        readFolder(folder, QString(), 0);
    }
    if (_filesSeen > kMostFiles && !std::exchange(_saidTooMany, true)) {
        log(QStringLiteral("There are more than %1 files among the desktop entries; the rest is left out")
                .arg(kMostFiles));
    }
    indexWindows();
}

void DesktopEntries::readFolder(const QString &folder, const QString &idPrefix, int depth) {
    _folderChanges.insert(folder, changeOf(folder));
    const QString place = QFileInfo(folder).canonicalFilePath();
    if (place.isEmpty() || _visited.contains(place)) {
        return; // links between folders may run in circles
    }
    _visited.insert(place);
    const QFileInfoList children = QDir(folder).entryInfoList(
        QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::System, QDir::Name);
    for (const QFileInfo &child : children) {
        if (++_filesSeen > kMostFiles) {
            return;
        }
        const QString name = child.fileName();
        if (child.isDir() && depth < kDeepest) {
            readFolder(child.filePath(), idPrefix + name + QLatin1Char('-'), depth + 1);
        } else if (name.endsWith(kEnding)) {
            add(child.filePath(), idPrefix + name.chopped(kEnding.size()));
        }
    }
}

void DesktopEntries::add(const QString &path, const QString &id) {
    if (_entries.contains(id)) {
        return; // an earlier folder comes first, also where its entry is hidden
    }
    if (const auto entry = readDesktopEntry(path, id)) {
        _entries.insert(id, *entry);
    }
}

void DesktopEntries::indexWindows() {
    _windows.clear();
    _windowsInAnyCase.clear();
    QStringList ids = _entries.keys();
    ids.sort(); // of two with the same claim it is always the same one
    for (const bool shown : {true, false}) {
        for (const QString &id : ids) {
            const DesktopEntry &entry = _entries[id];
            if (entry.isShown == shown) {
                claim(entry.startupWmClass, entry);
            }
        }
    }
    for (const QString &id : ids) {
        claim(id, _entries[id]);
    }
}

void DesktopEntries::claim(const QString &name, const DesktopEntry &entry) {
    if (name.isEmpty() || entry.isHidden) {
        return;
    }
    for (auto [index, key] : {std::pair(&_windows, name), std::pair(&_windowsInAnyCase, name.toLower())}) {
        if (!index->contains(key)) {
            index->insert(key, entry.id);
        }
    }
}

} // namespace barquell
