#include "app/InterfaceRooms.h"

#include "app/AppController.h"
#include "foundation/interface/InterfaceClasses.h"
#include "menubar/MenuBarClasses.h"
#include "menubar/hud/HUDClasses.h"
#include "preferences/PreferencesClasses.h"
#include "preferences/tabs/PreferencesTabsClasses.h"
#include "shortcuts/controls/ShortcutControls.h"

namespace barquell {

void registerInterfaceClasses() {
    InterfaceClasses::add<AppController>("AppController");
    registerHUDClasses();
    registerMenuBarClasses();
    registerPreferencesClasses();
    registerPreferencesTabs();
    registerShortcutControls();
}

} // namespace barquell
