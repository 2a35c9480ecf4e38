#include "app/Place.h"

#include "platform/Platform.h"
#include "platform/linux/FileSettingsStore.h"
#include "platform/linux/client/SocketTrust.h"
#include "platform/linux/client/TapServerClient.h"
#include "platform/simulated/InProcessNotifications.h"

namespace barquell {

namespace {

struct ThisMachine {
    FileSettingsStore settings{FileSettingsStore::defaultPath()};
    InProcessNotifications notifications;
    SocketTrust trust{tapServerSocket(), notifications};
    TapServerClient tapServer{tapServerSocket()};
};

} // namespace

void installThisMachine() {
    static ThisMachine machine;
    installPlatform(
        {&machine.tapServer, &machine.tapServer, &machine.trust, &machine.notifications, &machine.settings});
}

QString tapServerSocket() {
    return qEnvironmentVariable("BARQUELL_TAP_SOCKET", QString::fromLatin1(protocol::kDefaultSocket));
}

} // namespace barquell
