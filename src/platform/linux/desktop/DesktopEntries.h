#pragma once

#include "platform/linux/desktop/DesktopEntry.h"

#include <QDateTime>
#include <QHash>
#include <QSet>

namespace barquell {

/// The applications that are installed for this user, by their desktop entries. Read at the first question
/// and again at the first one after a folder changed; in between nothing is watched. Main thread only.
class DesktopEntries {
public:
    /// Where entries lie, the most important first: the applications folders of XDG_DATA_HOME and
    /// XDG_DATA_DIRS, then those of flatpak and snap where a session has not put them in already.
    static QStringList standardFolders();

    explicit DesktopEntries(QStringList folders = standardFolders());

    /// nullptr where there is none, or a hidden one. Valid until the next question.
    const DesktopEntry *entryWithId(const QString &id);

    /// The application that a window belongs to, by a name that the window carries: one part of its class
    /// (X11) or its application id (Wayland). An entry that claims the name (StartupWMClass) comes before one
    /// whose id it is, the exact spelling before another case, an entry that menus show before one that they
    /// do not. nullptr where there is none. Valid until the next question.
    const DesktopEntry *entryForWindow(const QString &name);

    /// The entry in a file, which may lie anywhere; nothing where it is no application's.
    static std::optional<DesktopEntry> entryInFile(const QString &path,
                                                   const QStringList &folders = standardFolders());

    const QStringList &folders() const { return _folders; }

private:
    void refresh();
    void readFolder(const QString &folder, const QString &idPrefix, int depth);
    void add(const QString &path, const QString &id);
    void indexWindows();
    void claim(const QString &name, const DesktopEntry &entry);

    const QStringList _folders;
    QHash<QString, DesktopEntry> _entries; ///< by id, the hidden ones among them
    QHash<QString, QString> _windows;      ///< ids by what windows carry
    QHash<QString, QString> _windowsInAnyCase;
    QHash<QString, QDateTime> _folderChanges; ///< of every folder that was read, missing ones too
    QSet<QString> _visited;                   ///< folders that the reading under way has seen, links resolved
    int _filesSeen = 0;                       ///< by it, whatever they were
    bool _saidTooMany = false;
};

} // namespace barquell
