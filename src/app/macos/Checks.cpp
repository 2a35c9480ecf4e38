#include "app/Place.h"
#include "app/RegisteredDefaults.h"
#include "app/commands/Check.h"
#include "app/macos/Findings.h"
#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "process/Helpers.h"

#include <QCoreApplication>

namespace barquell {

namespace {

/// The status item, the icon and the scripting dictionary come with the bundle alone.
bool liesInABundle() {
    return QCoreApplication::applicationDirPath().endsWith(QLatin1String(".app/Contents/MacOS"));
}

/// Also where the system cannot tell.
bool startsAtLogin() {
    const LoginItemState state = platform().loginItem->state(Helpers::loginHelper());
    return state.kind != LoginItemState::Kind::Off && state.value.value_or(true);
}

} // namespace

Findings lookAround() {
    installThisMachine();
    UserDefaults settings(platform().settingsStore, UserDefaults::Following::No);
    registerDefaults(settings);
    return {.copies = platform().workspace->runningCopies(Bundle::mainBundleIdentifier()),
            .enabled = settings.boolForKey(QStringLiteral("Enabled")),
            .launchAtStart = settings.boolForKey(QStringLiteral("LaunchAtStart"))};
}

QList<Check> checkEverything() {
    const Findings findings = lookAround();
    QList<Check> checks{
        {QStringLiteral("blocking is switched on"), findings.enabled,
         QStringLiteral("barquell defaults write Enabled -bool true")},
        {QStringLiteral("Barquell is running"), findings.copies > 0, QStringLiteral("open -a Barquell")},
        {QStringLiteral("one copy runs"), findings.copies < 2,
         QStringLiteral("barquell quit; open -a Barquell")},
        {QStringLiteral("the program lies in its bundle"), liesInABundle(),
         QStringLiteral("start Barquell.app/Contents/MacOS/Barquell and not a copy of it")},
    };
    if (findings.launchAtStart) {
        checks.append({QStringLiteral("Barquell starts at login, as the settings want it"), startsAtLogin(),
                       QStringLiteral("while it runs: barquell defaults write LaunchAtStart -bool true")});
    }
    return checks;
}

} // namespace barquell
