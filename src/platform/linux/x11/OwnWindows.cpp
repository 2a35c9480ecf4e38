#include "platform/linux/x11/OwnWindows.h"

#include "foundation/RunLoop.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace barquell {

namespace {

constexpr std::array kHints{"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"};
constexpr const char *kState = "_NET_WM_STATE";

bool isOrdinary(const QWindow &window) {
    return !window.parent() && (window.type() == Qt::Window || window.type() == Qt::Dialog);
}

xcb_window_t idOf(QWindow &window) {
    return static_cast<xcb_window_t>(window.winId());
}

} // namespace

OwnWindows::OwnWindows(std::unique_ptr<XDesktop> connection) : _x(std::move(connection)) {
    _clock = xcb_generate_id(_x->connection());
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(_x->connection(), 0, _clock, _x->root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    qGuiApp->installEventFilter(this);
}

QList<QWindow *> OwnWindows::visible() {
    QList<QWindow *> windows = QGuiApplication::topLevelWindows();
    windows.removeIf([](const QWindow *window) { return !window->isVisible() || !isOrdinary(*window); });
    return windows;
}

void OwnWindows::setHiddenFromTaskBar(bool hidden) {
    _hidden = hidden;
    for (QWindow *window : visible()) {
        askManager(*window);
    }
}

void OwnWindows::activate() {
    // Later: a window that is shown in this turn has reached the server by then, and is activated too.
    RunLoop::main().performAsync([guard = QPointer(this)] {
        if (guard) {
            guard->activateNow();
        }
    });
}

void OwnWindows::activateNow() {
    const QList<QWindow *> windows = visible();
    if (windows.isEmpty()) {
        return;
    }
    for (QWindow *window : windows) {
        window->raise();
    }
    QWindow *modal = QGuiApplication::modalWindow();
    QWindow *first = windows.contains(modal) ? modal : windows.constLast();
    constexpr std::uint32_t kFromApplication = 1;
    // The time is now: the user has just asked, be it with a click that another program got.
    _x->tellRoot(idOf(*first), "_NET_ACTIVE_WINDOW", {kFromApplication, serverTime(), 0, 0, 0});
    _x->flush();
}

bool OwnWindows::eventFilter(QObject *object, QEvent *event) {
    // Sent just before the window is mapped.
    auto *window = event->type() == QEvent::Show ? qobject_cast<QWindow *>(object) : nullptr;
    if (window && window->handle() && isOrdinary(*window)) {
        writeHints(*window);
    }
    return QObject::eventFilter(object, event);
}

void OwnWindows::writeHints(QWindow &window) const {
    auto states = _x->numbers(idOf(window), kState, XCB_ATOM_ATOM);
    for (const char *hint : kHints) {
        std::erase(states, _x->atom(hint));
        if (_hidden) {
            states.push_back(_x->atom(hint));
        }
    }
    // Waits until it is done: the toolkit, on its own connection, reads the property next and adds to it.
    const XMessage<xcb_generic_error_t> error(xcb_request_check(
        _x->connection(), xcb_change_property_checked(
                              _x->connection(), XCB_PROP_MODE_REPLACE, idOf(window), _x->atom(kState),
                              XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(states.size()), states.data())));
}

void OwnWindows::askManager(QWindow &window) const {
    const std::uint32_t action = _hidden ? 1 : 0; // _NET_WM_STATE_ADD, _NET_WM_STATE_REMOVE
    _x->tellRoot(idOf(window), kState, {action, _x->atom(kHints[0]), _x->atom(kHints[1]), 1, 0});
    _x->flush();
}

std::uint32_t OwnWindows::serverTime() const {
    // A property that changes by nothing still tells when it did.
    xcb_change_property(_x->connection(), XCB_PROP_MODE_APPEND, _clock, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8,
                        0, nullptr);
    _x->flush();
    while (const XMessage<xcb_generic_event_t> event{xcb_wait_for_event(_x->connection())}) {
        if ((event->response_type & ~0x80) == XCB_PROPERTY_NOTIFY) {
            return reinterpret_cast<const xcb_property_notify_event_t &>(*event).time;
        }
    }
    return XCB_CURRENT_TIME;
}

} // namespace barquell
