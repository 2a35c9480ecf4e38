#include "platform/linux/x11/WindowFacts.h"

#include <QSysInfo>

namespace barquell {

namespace {

QString firstText(const QByteArray &value) {
    return QString::fromUtf8(value.constData()); // ends at the first 0
}

bool isOnThisMachine(const XDesktop &x, xcb_window_t window) {
    const QString machine = firstText(x.text(window, "WM_CLIENT_MACHINE"));
    return machine.isEmpty() || machine == QSysInfo::machineHostName();
}

qint64 processOf(const XDesktop &x, xcb_window_t window) {
    const auto value = x.numbers(window, "_NET_WM_PID", XCB_ATOM_CARDINAL);
    return value.size() == 1 && isOnThisMachine(x, window) ? value.front() : 0;
}

} // namespace

WindowFacts readWindowFacts(const XDesktop &x, xcb_window_t window) {
    WindowFacts facts;
    const QByteArray names = x.text(window, "WM_CLASS"); // instance, 0, class, 0
    facts.instanceName = firstText(names);
    if (const qsizetype end = names.indexOf('\0'); end >= 0) {
        facts.className = firstText(names.mid(end + 1));
    }
    facts.applicationId = firstText(x.text(window, "_GTK_APPLICATION_ID"));
    if (facts.applicationId.isEmpty()) {
        facts.applicationId = firstText(x.text(window, "_KDE_NET_WM_DESKTOP_FILE"));
    }
    facts.processId = processOf(x, window);
    return facts;
}

} // namespace barquell
