#include "platform/linux/statusbar/TrayItem.h"

#include "platform/linux/statusbar/IconPixmaps.h"

#include <QCursor>
#include <QSystemTrayIcon>

namespace barquell {

TrayItem::TrayItem() : _icon(std::make_unique<QSystemTrayIcon>()) {
    connect(_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        switch (reason) {
        case QSystemTrayIcon::Trigger:
            Q_EMIT clicked(false, QCursor::pos());
            break;
        case QSystemTrayIcon::Context:
        case QSystemTrayIcon::MiddleClick:
            Q_EMIT clicked(true, QCursor::pos());
            break;
        case QSystemTrayIcon::Unknown:
        case QSystemTrayIcon::DoubleClick: // its first half was a click
            break;
        }
    });
}

TrayItem::~TrayItem() = default;

bool TrayItem::isTrayThere() {
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void TrayItem::show(const StatusItemLook &look) {
    _icon->setIcon(coloredIcon(look.image, look.color, look.opacity));
    _icon->setToolTip(look.toolTip);
    _icon->setVisible(look.visible);
}

} // namespace barquell
