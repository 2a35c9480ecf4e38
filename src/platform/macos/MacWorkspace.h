#pragma once

#include "platform/Workspace.h"

namespace barquell {

class MacWorkspace final : public Workspace {
public:
    std::optional<RunningApplication> frontmostApplication() const override;
    bool canKnowFrontmostApplication() const override { return true; }
    std::unique_ptr<Observation> observeActivation(std::function<void()> handler) override;
    int runningCopies(const QString &bundleIdentifier) const override;
    bool openUrl(const QUrl &url) override;
};

} // namespace barquell
