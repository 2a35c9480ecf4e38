#pragma once

#include "platform/Applications.h"
#include "platform/linux/desktop/DesktopEntries.h"

namespace barquell {

/// The installed applications by their desktop entries, with icons of the user's icon theme.
class LinuxApplications final : public Applications {
public:
    /// The entries must outlive it.
    explicit LinuxApplications(DesktopEntries &entries) : _entries(entries) {}

    QString pathOfApplication(const QString &bundleIdentifier) const override;
    QString bundleIdentifier(const QString &path) const override;
    QString displayName(const QString &path) const override;
    QString ownName(const QString &path) const override;
    QIcon icon(const QString &path) const override;
    QString folder() const override;
    QString fileType() const override { return QStringLiteral("desktop"); }

private:
    DesktopEntry entryOf(const QString &path) const;

    DesktopEntries &_entries;
};

} // namespace barquell
