// Says what the environment's language makes of a text: languageprobe

#include "foundation/Bundle.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    std::puts(qUtf8Printable(barquell::Bundle::localizedString(QStringLiteral("Cancel"))));
    return 0;
}
