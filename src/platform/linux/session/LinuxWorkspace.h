#pragma once

#include "platform/Workspace.h"
#include "platform/linux/session/RunningCopies.h"
#include "platform/linux/x11/ApplicationOfWindow.h"
#include "platform/linux/x11/FrontWindow.h"

#include <vector>

namespace barquell {

/// What is in front, by the window manager of an X server; what runs, by the session bus.
class LinuxWorkspace final : public Workspace {
public:
    using UrlOpener = std::function<bool(const QUrl &)>;

    /// All must outlive this. Without a connection (see XDesktop::open()) nobody knows what is in front.
    LinuxWorkspace(std::unique_ptr<XDesktop> connection, DesktopEntries &entries, RunningCopies &copies,
                   UrlOpener urlOpener);

    std::optional<RunningApplication> frontmostApplication() const override { return _frontmost; }
    bool canKnowFrontmostApplication() const override { return _frontWindow.isKnown(); }
    std::unique_ptr<Observation> observeActivation(std::function<void()> handler) override;
    int runningCopies(const QString &bundleIdentifier) const override {
        return _copies.count(bundleIdentifier);
    }
    bool openUrl(const QUrl &url) override { return _urlOpener && _urlOpener(url); }

private:
    void look();
    void tell();

    DesktopEntries &_entries;
    RunningCopies &_copies;
    UrlOpener _urlOpener;
    FrontWindow _frontWindow;
    std::optional<RunningApplication> _frontmost;
    std::vector<std::weak_ptr<std::function<void()>>> _observers;
};

} // namespace barquell
