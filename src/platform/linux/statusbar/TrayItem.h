#pragma once

#include "platform/linux/statusbar/StatusItemLook.h"

#include <QObject>
#include <QPoint>

#include <memory>

class QSystemTrayIcon;

namespace barquell {

/// The item in the X11 tray, where no panel speaks the newer protocol. Qt's own tray icon is taken as it is:
/// the XEmbed protocol (docking, the visual, a background that shows the panel) is a few hundred lines that
/// gain nothing over it, and used only where no register of status items is there, it never gets to export a
/// menu. Main thread only.
class TrayItem final : public QObject {
    Q_OBJECT

public:
    TrayItem();
    ~TrayItem() override;
    Q_DISABLE_COPY_MOVE(TrayItem)

    /// A tray is there now.
    static bool isTrayThere();

    void show(const StatusItemLook &look);

Q_SIGNALS:
    /// Where, in Qt's own coordinates.
    void clicked(bool right, const QPoint &position);

private:
    std::unique_ptr<QSystemTrayIcon> _icon;
};

} // namespace barquell
