#pragma once

#include <QStringList>
#include <QUrl>

#include <functional>

namespace barquell {

/// Opens addresses as this desktop can. The store's page is the project's own, and the privacy settings,
/// which no desktop has, are a page of our own. Main thread only.
class LinuxUrlOpener {
public:
    /// Starts a program without waiting for it; false where it cannot be started.
    using Launcher = std::function<bool(const QString &program, const QStringList &arguments)>;

    explicit LinuxUrlOpener(std::function<void()> showPrivacyPage, Launcher launch = launchDetached);

    /// False where nobody opens it.
    bool operator()(const QUrl &url) const;

private:
    static bool launchDetached(const QString &program, const QStringList &arguments);

    std::function<void()> _showPrivacyPage;
    Launcher _launch;
};

} // namespace barquell
