#include "app/commands/Arguments.h"
#include "app/commands/Commands.h"

#include <QCoreApplication>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("barquell"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BARQUELL_VERSION));
    return barquell::runCommand(QCoreApplication::arguments().mid(1));
}
