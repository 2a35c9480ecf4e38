#include "platform/linux/x11/ApplicationOfWindow.h"

#include "foundation/Bundle.h"
#include "platform/linux/x11/ProcessFacts.h"

namespace barquell {

namespace {

using Found = std::optional<DesktopEntry>;

/// The first of the ids that is installed.
Found firstOf(const QStringList &ids, DesktopEntries &entries) {
    for (const QString &id : ids) {
        if (const DesktopEntry *entry = id.isEmpty() ? nullptr : entries.entryWithId(id)) {
            return *entry;
        }
    }
    return std::nullopt;
}

Found byClass(const WindowFacts &window, DesktopEntries &entries) {
    for (const QString &name : {window.className, window.instanceName}) {
        if (const DesktopEntry *entry = name.isEmpty() ? nullptr : entries.entryForWindow(name)) {
            return *entry;
        }
    }
    return std::nullopt;
}

Found entryOf(const WindowFacts &window, DesktopEntries &entries, const ProcessFacts &process) {
    Found entry = firstOf({window.applicationId}, entries);
    if (!entry) {
        entry = firstOf(process.sandboxIds(), entries);
    }
    if (!entry) {
        entry = byClass(window, entries);
    }
    return entry ? entry : firstOf(process.launchedIds(), entries);
}

} // namespace

RunningApplication applicationOfWindow(const WindowFacts &window, DesktopEntries &entries,
                                       const QString &processes) {
    const ProcessFacts process(window.processId, processes);
    const QString ownId = Bundle::mainBundleIdentifier();
    const Found entry =
        process.isThisProgram() ? firstOf({ownId}, entries) : entryOf(window, entries, process);
    if (!entry) {
        return {process.isThisProgram() ? ownId : QString(), {}, window.processId};
    }
    return {entry->id, entry->path, window.processId};
}

} // namespace barquell
