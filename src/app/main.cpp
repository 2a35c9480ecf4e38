#include "app/Place.h"
#include "app/commands/Commands.h"
#include "app/commands/StartCommand.h"

#include <QApplication>

#include <cstring>

namespace {

/// Windows only for the program itself, and where there is somewhere to show them: a command is quicker
/// without, and Qt ends a process whose display does not answer.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv) {
    const bool starts = argc < 2 || (argc == 2 && std::strcmp(argv[1], barquell::kSimulateOption) == 0);
    barquell::prepareProcess(starts);
    if (starts && barquell::hasDisplay()) {
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication::setApplicationName(QStringLiteral("barquell"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BARQUELL_VERSION));
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    return barquell::runCommand(QCoreApplication::arguments().mid(1));
}
