#include "platform/macos/MacPlatform.h"

#include <QApplication>
#include <QFileInfo>

#include <gmock/gmock.h>

/// A Mac is there before the application, as in the program itself, and its windows are real: only then does
/// Qt's loop serve what the system calls.
int main(int argc, char **argv) {
    const QString name = QFileInfo(QString::fromLocal8Bit(*argv)).fileName();
    barquell::installMac(name, {QStringLiteral("key"), QStringLiteral("other")});
    const QApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
