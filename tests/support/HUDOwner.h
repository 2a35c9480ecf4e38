#pragma once

#include "menubar/hud/TouchBarHUDController.h"

#include <QPointer>

namespace barquell::test {

/// As the application controller owns the HUD.
class HUDOwner final : public QObject {
    Q_OBJECT
    Q_PROPERTY(barquell::TouchBarHUDController *touchBarHUDController READ hud WRITE setHUD)

public:
    TouchBarHUDController *hud() const { return _hud; }
    void setHUD(TouchBarHUDController *hud) { _hud = hud; }

private:
    QPointer<TouchBarHUDController> _hud;
};

} // namespace barquell::test
