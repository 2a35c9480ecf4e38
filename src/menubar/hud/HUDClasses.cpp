#include "menubar/hud/HUDClasses.h"

#include "foundation/interface/InterfaceClasses.h"
#include "menubar/hud/HUDPicture.h"
#include "menubar/hud/TouchBarHUDController.h"

namespace barquell {

void registerHUDClasses() {
    InterfaceClasses::add<HUDPlate>("HUDPlate");
    InterfaceClasses::add<HUDPicture>("HUDPicture");
    InterfaceClasses::add<TouchBarHUDVariant>("TouchBarHUDVariant");
    InterfaceClasses::add<TouchBarHUDController>("TouchBarHUDController");
}

} // namespace barquell
