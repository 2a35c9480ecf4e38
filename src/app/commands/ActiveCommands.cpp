#include "app/commands/ActiveCommands.h"

#include "app/commands/Arguments.h"
#include "app/commands/SavedSettings.h"
#include "app/scripting/SetTouchBarActiveCommand.h"
#include "app/scripting/ToggleTouchBarCommand.h"
#include "foundation/UserDefaults.h"

namespace barquell {

namespace {

const QString kCountsLater =
    QStringLiteral("It stores \"Active\", which counts when Barquell starts next; blocking does not\n"
                   "change now. To change it now: barquell defaults write Enabled -bool true|false");

int perform(ScriptCommand &command) {
    command.performDefaultImplementation();
    return saveSettings(UserDefaults::standard());
}

} // namespace

int runToggle(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("\nToggles the Touch Bar. ") + kCountsLater);
    const QString name = QStringLiteral("toggle");
    if (const auto done = parseArguments(parser, name, arguments)) {
        return *done;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return wrongUsage(name, QStringLiteral("takes no words"));
    }
    ToggleTouchBarCommand command;
    return perform(command);
}

int runActive(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("\nSays whether the Touch Bar is to be active: on lets its touches through, off holds "
                       "them\nback. ") +
        kCountsLater);
    parser.addPositionalArgument(QStringLiteral("state"), QStringLiteral("on or off."),
                                 QStringLiteral("on|off"));
    const QString name = QStringLiteral("active");
    if (const auto done = parseArguments(parser, name, arguments)) {
        return *done;
    }
    const QStringList words = parser.positionalArguments();
    const bool on = words == QStringList{QStringLiteral("on")};
    if (!on && words != QStringList{QStringLiteral("off")}) {
        return wrongUsage(name, QStringLiteral("It is 'on' or 'off'"));
    }
    SetTouchBarActiveCommand command;
    command.arguments.insert(QString(), on);
    return perform(command);
}

} // namespace barquell
