#pragma once

#include "platform/Workspace.h"

#include <QHash>
#include <QList>
#include <QUrl>

#include <vector>

namespace barquell {

/// A session whose applications come to the front as a script says.
class ScriptedWorkspace final : public Workspace {
public:
    std::optional<RunningApplication> frontmostApplication() const override { return frontmost; }
    bool canKnowFrontmostApplication() const override { return knowsFrontmost; }
    std::unique_ptr<Observation> observeActivation(std::function<void()> handler) override;
    int runningCopies(const QString &bundleIdentifier) const override {
        return copies.value(bundleIdentifier);
    }
    bool openUrl(const QUrl &url) override;

    /// The application comes to the front; who observes that hears later from the run loop.
    void bringToFront(const std::optional<RunningApplication> &application);

    std::optional<RunningApplication> frontmost;
    bool knowsFrontmost = true;
    QHash<QString, int> copies; ///< by bundle identifier
    bool opensUrls = true;
    QList<QUrl> openedUrls; ///< all that were asked for, in their order

private:
    using Handler = std::function<void()>;

    std::vector<std::weak_ptr<Handler>> _handlers;
};

} // namespace barquell
