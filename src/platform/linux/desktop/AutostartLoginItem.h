#pragma once

#include "platform/LoginItem.h"

#include <QString>
#include <QStringList>

namespace barquell {

/// The login item as the desktop's autostart entry (Desktop Application Autostart Specification 0.5,
/// freedesktop.org), named after the helper. There is no helper program here: the entry starts ours with the
/// variable that a helper would set.
class AutostartLoginItem final : public LoginItem {
public:
    /// The user's folder first, then the system's: "autostart" in XDG_CONFIG_HOME and XDG_CONFIG_DIRS.
    static QStringList standardFolders();

    /// The program is what is started at login, an absolute path.
    explicit AutostartLoginItem(QString program, QStringList folders = standardFolders());

    bool setEnabled(const QString &helperIdentifier, bool enabled) override;

    /// Hidden is off, as desktops write it that keep the entry. An entry that a desktop has switched off in
    /// its own way (X-GNOME-Autostart-enabled) is found with the value false, any other with true.
    LoginItemState state(const QString &helperIdentifier) const override;

private:
    QString userFile(const QString &helperIdentifier) const;
    bool write(const QString &helperIdentifier, const QByteArray &line) const;

    const QString _program;
    const QStringList _folders;
};

} // namespace barquell
