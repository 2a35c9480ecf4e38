#pragma once

#include "platform/linux/statusbar/IconPixmaps.h"
#include "platform/linux/statusbar/StatusItemLook.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QObject>
#include <QPoint>

namespace barquell {

/// What a tool tip is on the bus: (sa(iiay)ss).
struct NotifierToolTip {
    QString iconName;
    IconPixmaps icon;
    QString title;
    QString text;
};

QDBusArgument &operator<<(QDBusArgument &argument, const NotifierToolTip &toolTip);
const QDBusArgument &operator>>(const QDBusArgument &argument, NotifierToolTip &toolTip);

class NotifierWatcher;

/// An org.kde.StatusNotifierItem on the session bus, on a connection of its own, so that panels see it go
/// when it goes; a lost bus takes it along. It exports no menu: a click is ours to answer. Main thread only.
class NotifierItem final : public QObject {
    Q_OBJECT

public:
    /// The watcher must outlive the item.
    explicit NotifierItem(NotifierWatcher &watcher);
    ~NotifierItem() override;
    Q_DISABLE_COPY_MOVE(NotifierItem)

    /// Changes what panels see; the first call on a bus brings the item onto it.
    void show(const StatusItemLook &look);

    const StatusItemLook &look() const { return _look; }
    const IconPixmaps &pixmaps() const { return _pixmaps; }

Q_SIGNALS:
    /// Where, in pixels of the screen as the panel counts them.
    void clicked(bool right, const QPoint &position);

private:
    void connectToBus();
    void leaveBus();
    void registerItem();

    class NotifierItemAdaptor *_adaptor; // our child
    NotifierWatcher &_watcher;
    QDBusConnection _connection;
    QString _registeredWith; // the owner of the register that knows us
    StatusItemLook _look;
    IconPixmaps _pixmaps;
    bool _onBus = false;
};

/// The item's face on the bus. The names are the protocol's.
class NotifierItemAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category)
    Q_PROPERTY(QString Id READ id)
    Q_PROPERTY(QString Title READ title)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu)
    Q_PROPERTY(QString IconName READ iconName)
    Q_PROPERTY(barquell::IconPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(barquell::NotifierToolTip ToolTip READ toolTip)

public:
    explicit NotifierItemAdaptor(NotifierItem &item);

    static QString category() { return QStringLiteral("Hardware"); }
    QString id() const { return _item.look().name; }
    static QString title();
    QString status() const;
    static int windowId() { return 0; }
    static bool itemIsMenu() { return false; }
    static QString iconName() { return {}; }
    const IconPixmaps &iconPixmap() const { return _item.pixmaps(); }
    NotifierToolTip toolTip() const;

public Q_SLOTS:
    void Activate(int x, int y) { Q_EMIT _item.clicked(false, {x, y}); }
    void ContextMenu(int x, int y) { Q_EMIT _item.clicked(true, {x, y}); }
    // Some panels keep the right click for a menu of their own; the middle one serves in its place.
    void SecondaryActivate(int x, int y) { Q_EMIT _item.clicked(true, {x, y}); }
    void Scroll(int /*delta*/, const QString & /*orientation*/) {}

Q_SIGNALS:
    void NewIcon();
    void NewToolTip();
    void NewStatus(const QString &status);

private:
    NotifierItem &_item;
};

} // namespace barquell

Q_DECLARE_METATYPE(barquell::NotifierToolTip)
