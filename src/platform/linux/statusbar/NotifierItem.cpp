#include "platform/linux/statusbar/NotifierItem.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"
#include "platform/linux/statusbar/NotifierWatcher.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMetaType>

namespace barquell {

namespace {

/// Each item of the process has a number of its own in its name, org.kde.StatusNotifierItem-PID-NUMBER.
QString nextName() {
    static int number = 0;
    return QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(++number);
}

} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const NotifierToolTip &toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.icon << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, NotifierToolTip &toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.icon >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

NotifierItem::NotifierItem(NotifierWatcher &watcher)
    : _adaptor(new NotifierItemAdaptor(*this)), _watcher(watcher), _connection(QString()) {
    qDBusRegisterMetaType<IconPixmap>();
    qDBusRegisterMetaType<IconPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
    connect(&watcher, &NotifierWatcher::changed, this, &NotifierItem::registerItem);
    connect(&watcher.bus(), &MessageBus::disconnected, this, &NotifierItem::leaveBus);
}

NotifierItem::~NotifierItem() {
    leaveBus();
}

void NotifierItem::show(const StatusItemLook &look) {
    const StatusItemLook before = std::exchange(_look, look);
    IconPixmaps pixmaps = iconPixmaps(look.image, look.color, look.opacity);
    const bool newIcon = pixmaps != _pixmaps;
    _pixmaps = std::move(pixmaps);
    if (!_onBus) {
        if (_watcher.bus().isConnected()) {
            connectToBus();
        }
        return;
    }
    if (newIcon) {
        Q_EMIT _adaptor->NewIcon();
    }
    if (before.toolTip != look.toolTip) {
        Q_EMIT _adaptor->NewToolTip();
    }
    if (before.visible != look.visible) {
        Q_EMIT _adaptor->NewStatus(_adaptor->status());
    }
}

void NotifierItem::connectToBus() {
    _onBus = true; // one attempt a bus
    const QString name = nextName();
    _connection = QDBusConnection::connectToBus(_watcher.bus().address(), name);
    if (!_connection.registerObject(QStringLiteral("/StatusNotifierItem"), this) ||
        !_connection.registerService(name)) {
        log(QStringLiteral("The status item cannot be brought onto the session bus: %1")
                .arg(_connection.lastError().message()));
        return;
    }
    registerItem();
}

void NotifierItem::leaveBus() {
    QDBusConnection::disconnectFromBus(_connection.name());
    _registeredWith.clear();
    _onBus = false;
}

void NotifierItem::registerItem() {
    if (_onBus && _registeredWith != _watcher.owner()) {
        _registeredWith = _watcher.owner();
        if (!_registeredWith.isEmpty()) {
            NotifierWatcher::registerItem(_connection, _connection.name());
        }
    }
}

NotifierItemAdaptor::NotifierItemAdaptor(NotifierItem &item) : QDBusAbstractAdaptor(&item), _item(item) {}

QString NotifierItemAdaptor::title() {
    return Bundle::localizedName();
}

QString NotifierItemAdaptor::status() const {
    return _item.look().visible ? QStringLiteral("Active") : QStringLiteral("Passive");
}

NotifierToolTip NotifierItemAdaptor::toolTip() const {
    return {.iconName = {}, .icon = {}, .title = _item.look().toolTip, .text = {}};
}

} // namespace barquell
