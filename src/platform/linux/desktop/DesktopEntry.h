#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace barquell {

/// What the group "Desktop Entry" of a file says of an application (Desktop Entry
/// Specification 1.5, freedesktop.org). Texts are in the user's language where the file has it.
struct DesktopEntry {
    QString id;             ///< without ".desktop"; the application's bundle identifier
    QString path;           ///< the file
    QString name;           ///< may be empty, though it should not
    QString icon;           ///< of the icon theme, or an absolute path
    QString exec;           ///< the command line as it is written
    QString startupWmClass; ///< the window class (X11) or application id (Wayland) of its windows
    bool isShown = true;    ///< in this desktop's menus; one that is not may still run and own windows
    bool isHidden = false;  ///< it counts as deleted, and so do those of its id in later folders

    /// The program that it starts, without folder and arguments; empty where it starts none.
    QString program() const;
};

/// Reads an entry's text, everything but id and path; nothing where it is no application's. A line whose
/// encoding is broken counts as absent. The locale is written as in the environment ("sr_RS.UTF-8@latin");
/// the desktops are the names of the running one.
std::optional<DesktopEntry> parseDesktopEntry(const QByteArray &text, const QString &locale,
                                              const QStringList &desktops);

/// The entry in a file for the user of this process; nothing where it is no application's, nor, said in one
/// line, where it cannot be read.
std::optional<DesktopEntry> readDesktopEntry(const QString &path, const QString &id);

} // namespace barquell
