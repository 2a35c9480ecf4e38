#pragma once

#include "platform/Observation.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QUrl;

namespace barquell {

/// An application that runs.
struct RunningApplication {
    QString bundleIdentifier; ///< empty where it has none
    QString bundlePath;       ///< the file that it was started from as an application; empty where unknown
    qint64 processId = 0;     ///< 0 where unknown

    bool operator==(const RunningApplication &) const = default;
};

/// What is in front and what runs in this session. Main thread only.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Nothing where no application is in front, or where the place cannot know.
    /// macOS: [NSWorkspace.sharedWorkspace frontmostApplication].
    virtual std::optional<RunningApplication> frontmostApplication() const = 0;

    /// False where frontmostApplication() never has an answer.
    virtual bool canKnowFrontmostApplication() const = 0;

    /// Calls from the main run loop after an application came to the front; nothing is polled for it.
    /// macOS: NSWorkspaceDidActivateApplicationNotification.
    [[nodiscard]] virtual std::unique_ptr<Observation> observeActivation(std::function<void()> handler) = 0;

    /// How many copies of an application run, this process included where it is one.
    /// macOS: [[NSRunningApplication runningApplicationsWithBundleIdentifier:] count].
    virtual int runningCopies(const QString &bundleIdentifier) const = 0;

    /// False where nobody opens it. Does not wait. macOS: [NSWorkspace.sharedWorkspace openURL:].
    virtual bool openUrl(const QUrl &url) = 0;

protected:
    Workspace() = default;
    Workspace(const Workspace &) = default;
    Workspace &operator=(const Workspace &) = default;
};

} // namespace barquell
