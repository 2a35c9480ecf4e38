#include "app/linux/Checks.h"
#include "app/linux/Findings.h"
#include "foundation/Bundle.h"
#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/DesktopEntries.h"
#include "platform/linux/x11/FrontWindow.h"
#include "process/Helpers.h"

#include <QCoreApplication>

namespace barquell {

namespace {

QString inSession() {
    return QStringLiteral("start Barquell from a desktop session");
}

/// On X11, from a window manager of today.
bool tellsWhatIsInFront() {
    return FrontWindow(XDesktop::open(), [] {}).isKnown();
}

bool isInstalled() {
    return DesktopEntries().entryWithId(Bundle::mainBundleIdentifier()) != nullptr;
}

bool startsAtLogin() {
    const AutostartLoginItem loginItem(QCoreApplication::applicationFilePath());
    const LoginItemState state = loginItem.state(Helpers::loginHelper());
    return state.kind == LoginItemState::Kind::Found && state.value.value_or(true);
}

} // namespace

QList<Check> checkEverything() {
    const Findings findings = lookAround();
    return checkBlocking(findings) + checkDesktop(findings);
}

QList<Check> checkDesktop(const Findings &findings) {
    QList<Check> checks{
        {QStringLiteral("there is a display"), findings.hasDisplay,
         inSession() + QStringLiteral("; without one it blocks without windows")},
        {QStringLiteral("the window manager tells what is in front"), tellsWhatIsInFront(),
         QStringLiteral(
             "use an X11 session with a window manager such as openbox; without one the bypass list has "
             "no effect")},
        {QStringLiteral("there is a session bus"), findings.asked != RunningProgram::Outcome::NoBus,
         inSession() + QStringLiteral(", or: dbus-run-session barquell")},
        {QStringLiteral("launchers know Barquell"), isInstalled(), installPackage()},
    };
    if (findings.asked == RunningProgram::Outcome::Done) {
        checks.append({QStringLiteral("a panel shows status items"),
                       findings.report.value(QStringLiteral("hasStatusBar")).toBool(),
                       QStringLiteral("start one, for example: xfce4-panel &; without one: barquell show")});
    }
    if (findings.launchAtStart) {
        checks.append({QStringLiteral("Barquell starts at login, as the settings want it"), startsAtLogin(),
                       QStringLiteral("while it runs: barquell defaults write LaunchAtStart -bool true")});
    }
    return checks;
}

} // namespace barquell
