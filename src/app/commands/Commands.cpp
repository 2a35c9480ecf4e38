#include "app/commands/Commands.h"

#include "app/Place.h"
#include "app/commands/ActiveCommands.h"
#include "app/commands/Arguments.h"
#include "app/commands/DefaultsCommand.h"
#include "app/commands/DoctorCommand.h"
#include "app/commands/RemoteCommands.h"
#include "app/commands/ReplayCommand.h"
#include "app/commands/RevokeCommand.h"
#include "app/commands/StartCommand.h"
#include "app/commands/StatusCommand.h"
#include "foundation/Log.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdio>

namespace barquell {

namespace {

struct Command {
    const char *name;
    const char *summary;
    int (*run)(const QStringList &arguments);
};

/// A command that needs the stored settings and nothing else.
template <int (*Run)(const QStringList &)>
int onStoredSettings(const QStringList &arguments) {
    installThisMachine();
    return Run(arguments);
}

constexpr std::array kCommands{
    Command{"status", "say what is running, trusted and held", runStatus},
    Command{"doctor", "check what is needed, and say what mends what is missing", runDoctor},
    Command{"show", "let the running copy show itself", runShow},
    Command{"quit", "end every running copy", runQuit},
    Command{"toggle", "toggle the Touch Bar from the next start on", onStoredSettings<runToggle>},
    Command{"active", "make the Touch Bar active or not, from the next start on",
            onStoredSettings<runActive>},
    Command{"revoke", "give up the permission to filter", runRevoke},
    Command{"replay", "say what becomes of recorded touches", runReplay},
    Command{"defaults", "read, write or delete settings", onStoredSettings<runDefaults>},
};

int printHelp() {
    std::puts("Usage: barquell [COMMAND [options]]\n\n"
              "Barquell holds accidental touches of the Touch Bar back. Without a command it starts.\n\n"
              "Commands:");
    for (const Command &command : kCommands) {
        std::printf("  %-10s %s\n", command.name, command.summary);
    }
    std::puts("\n  barquell COMMAND --help   how to use a command\n"
              "  barquell --simulate       start with a Touch Bar in a window\n"
              "  barquell --version        which version this is");
    return kExitSuccess;
}

int printVersion() {
    std::printf("barquell %s\n", qUtf8Printable(QCoreApplication::applicationVersion()));
    return kExitSuccess;
}

bool isOneOf(const QString &word, std::initializer_list<const char *> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](const char *each) { return word == QLatin1String(each); });
}

const Command *commandNamed(const QString &name) {
    const auto *const command = std::find_if(kCommands.begin(), kCommands.end(), [&](const Command &each) {
        return name == QLatin1String(each.name);
    });
    return command == kCommands.end() ? nullptr : command;
}

} // namespace

int runCommand(const QStringList &words) {
    if (words.isEmpty() || words == QStringList(QLatin1String(kSimulateOption))) {
        return runStart(words);
    }
    const QString &word = words.constFirst();
    if (isOneOf(word, {"--version", "-v"})) {
        return printVersion();
    }
    if (isOneOf(word, {"help", "--help", "-h"})) {
        const Command *about = commandNamed(words.value(1));
        return about ? about->run({words.at(1), QStringLiteral("--help")}) : printHelp();
    }
    if (const Command *command = commandNamed(word)) {
        return command->run(words);
    }
    logToStandardError(QStringLiteral("no command '%1' (see 'barquell --help')").arg(word));
    return kExitUsage;
}

} // namespace barquell
