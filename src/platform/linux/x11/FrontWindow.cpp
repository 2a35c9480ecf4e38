#include "platform/linux/x11/FrontWindow.h"

#include "foundation/Log.h"

#include <algorithm>

namespace barquell {

namespace {

constexpr int kMostRounds = 8;    // in one turn of the run loop
constexpr int kMostEvents = 1000; // in one round

constexpr const char *kActive = "_NET_ACTIVE_WINDOW";
constexpr const char *kManager = "_NET_SUPPORTING_WM_CHECK";
constexpr const char *kSupported = "_NET_SUPPORTED";
constexpr const char *kClass = "WM_CLASS";

xcb_window_t firstWindow(const XDesktop &x, xcb_window_t window, const char *name) {
    const auto windows = x.numbers(window, name, XCB_ATOM_WINDOW);
    return windows.empty() ? static_cast<xcb_window_t>(XCB_NONE) : windows.front();
}

} // namespace

FrontWindow::FrontWindow(std::unique_ptr<XDesktop> connection, std::function<void()> onChange)
    : _x(std::move(connection)), _onChange(std::move(onChange)) {
    if (!_x) {
        return;
    }
    _x->select(_x->root(), XCB_EVENT_MASK_PROPERTY_CHANGE);
    _notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(_x->connection()), QSocketNotifier::Read);
    QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(), [this] { readEvents(); });
    look();
    // An answer may have brought events along, which wake nobody any more.
    readEventsLater();
}

void FrontWindow::readEventsLater() {
    QMetaObject::invokeMethod(
        _notifier.get(), [this] { readEvents(); }, Qt::QueuedConnection);
}

bool FrontWindow::takeEvents() {
    bool concerned = false;
    for (int taken = 0; taken < kMostEvents; ++taken) {
        const XMessage<xcb_generic_event_t> event{xcb_poll_for_event(_x->connection())};
        if (!event) {
            return concerned;
        }
        concerned = concerned || concerns(*event);
    }
    readEventsLater();
    return concerned;
}

void FrontWindow::readEvents() {
    // What is asked of the server in look() can bring more events in, so the queue is emptied again after it.
    bool changed = false;
    const auto knownBefore = isKnown();
    const auto factsBefore = _facts;
    bool again = true;
    for (int round = 0; again && round < kMostRounds; ++round) {
        again = takeEvents();
        if (again) {
            look();
        }
    }
    if (again) {
        readEventsLater(); // who changes what is in front without a pause does not hold this thread
    }
    if (_x->isBroken()) {
        log(QStringLiteral("The X server went away; what is in front is not known any more"));
        _notifier->setEnabled(false);
        _manager = XCB_NONE;
        _facts.reset();
    }
    changed = knownBefore != isKnown() || factsBefore != _facts;
    if (changed) {
        _onChange();
    }
}

bool FrontWindow::concerns(const xcb_generic_event_t &event) const {
    const int type = event.response_type & ~0x80; // the bit says that another client sent it
    if (type == XCB_DESTROY_NOTIFY) {
        const xcb_window_t gone = reinterpret_cast<const xcb_destroy_notify_event_t &>(event).window;
        return gone == _manager || gone == _active;
    }
    if (type != XCB_PROPERTY_NOTIFY) {
        return false;
    }
    const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (change.window == _x->root()) {
        return change.atom == _x->atom(kActive) || change.atom == _x->atom(kManager) ||
               change.atom == _x->atom(kSupported);
    }
    return change.window == _active && change.atom == _x->atom(kClass);
}

void FrontWindow::look() {
    const xcb_window_t manager = livingManager();
    if (manager != _manager && manager != XCB_NONE) {
        _x->select(manager, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    }
    _manager = manager;
    const xcb_window_t active = isKnown() ? firstWindow(*_x, _x->root(), kActive) : XCB_NONE;
    if (_active != XCB_NONE && _active != active) {
        _x->select(_active, XCB_EVENT_MASK_NO_EVENT);
    }
    _active = active;
    // Its end is noticed too: not every manager takes back that it was in front.
    if (active == XCB_NONE || !_x->select(active, XCB_EVENT_MASK_STRUCTURE_NOTIFY)) {
        _facts.reset();
        return;
    }
    _facts = readWindowFacts(*_x, active);
    // Some programs say who they are only after their window has come to the front. The others are not
    // watched: a terminal that changes its title every second would wake us.
    if (_facts->className.isEmpty() && _facts->instanceName.isEmpty()) {
        _x->select(active, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
    }
}

xcb_window_t FrontWindow::livingManager() const {
    // A manager that was killed leaves the root's properties behind, but not its window.
    const xcb_window_t window = firstWindow(*_x, _x->root(), kManager);
    const bool lives = window != XCB_NONE && firstWindow(*_x, window, kManager) == window;
    const auto supported = _x->numbers(_x->root(), kSupported, XCB_ATOM_ATOM);
    const bool tells = std::find(supported.begin(), supported.end(), _x->atom(kActive)) != supported.end();
    return lives && tells ? window : XCB_NONE;
}

} // namespace barquell
