#include "platform/macos/MacWorkspace.h"

#include "platform/macos/CenterObservation.h"

#include <QUrl>

#import <AppKit/AppKit.h>

namespace barquell {

std::optional<RunningApplication> MacWorkspace::frontmostApplication() const {
    NSRunningApplication *front = [[NSWorkspace sharedWorkspace] frontmostApplication];
    if (!front) {
        return std::nullopt;
    }
    return RunningApplication{QString::fromNSString([front bundleIdentifier]),
                              QString::fromNSString([[front bundleURL] path]), [front processIdentifier]};
}

std::unique_ptr<Observation> MacWorkspace::observeActivation(std::function<void()> handler) {
    return std::make_unique<CenterObservation>(
        [[NSWorkspace sharedWorkspace] notificationCenter], NSWorkspaceDidActivateApplicationNotification,
        nil, [handler = std::move(handler)](NSNotification *) { handler(); });
}

int MacWorkspace::runningCopies(const QString &bundleIdentifier) const {
    NSArray *copies =
        [NSRunningApplication runningApplicationsWithBundleIdentifier:bundleIdentifier.toNSString()];
    return static_cast<int>([copies count]);
}

bool MacWorkspace::openUrl(const QUrl &url) {
    return [[NSWorkspace sharedWorkspace] openURL:url.toNSURL()];
}

} // namespace barquell
