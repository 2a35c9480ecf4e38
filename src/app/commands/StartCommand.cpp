#include "app/commands/StartCommand.h"

#include "app/Entry.h"
#include "app/InterfaceRooms.h"
#include "app/Place.h"
#include "app/StatusReport.h"
#include "app/commands/Arguments.h"
#include "app/scripting/SetTouchBarActiveCommand.h"
#include "app/scripting/ToggleTouchBarCommand.h"
#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "foundation/interface/ControlStyle.h"
#include "foundation/interface/Image.h"
#include "platform/AppLifecycle.h"
#include "platform/Platform.h"
#include "process/Windows.h"

#include <QGuiApplication>
#include <QIcon>

namespace barquell {

namespace {

ScriptCommands scriptCommands() {
    return {.toggleTouchBar = [] { ToggleTouchBarCommand().performDefaultImplementation(); },
            .setTouchBarActive =
                [](bool active) {
                    SetTouchBarActiveCommand command;
                    command.arguments.insert(QString(), active);
                    command.performDefaultImplementation();
                },
            .status = statusReport};
}

/// As desktops know the program: its windows belong to its desktop entry, and carry its picture.
void introduceWindows() {
    Bundle::localizeToolkit();
    QGuiApplication::setDesktopFileName(Bundle::mainBundleIdentifier());
    QGuiApplication::setWindowIcon(imageNamed(Bundle::mainBundleIdentifier()));
    installControlStyle();
    registerInterfaceClasses();
}

} // namespace

int runStart(const QStringList &arguments) {
    const bool simulated = arguments.contains(QLatin1String(kSimulateOption));
    if (simulated && !hasWindows()) {
        return failure(QStringLiteral("the simulated Touch Bar needs a display"));
    }
    installThisSession(simulated ? Bar::Simulated : Bar::Real);
    if (hasWindows()) {
        introduceWindows();
    }
    platform().appLifecycle->setScriptCommands(scriptCommands());
    return runApplication([] {
        if (!hasWindows()) {
            log(QStringLiteral("There is no display; Barquell blocks without windows"));
        }
        afterLaunch();
    });
}

} // namespace barquell
