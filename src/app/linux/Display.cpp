#include "app/Place.h"

#include "platform/linux/x11/XConnection.h"

#include <QByteArray>
#include <QDir>
#include <QLibraryInfo>

namespace barquell {

namespace {

/// Qt brings its Wayland part along only where that was installed.
bool canUseWayland() {
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           !plugins.entryList({QStringLiteral("libqwayland*")}).isEmpty();
}

} // namespace

bool hasDisplay() {
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    const bool needsNone = chosen.startsWith("offscreen") || chosen.startsWith("minimal");
    return needsNone || XConnection::open() || canUseWayland();
}

} // namespace barquell
