#include "preferences/tabs/PreferencesTabsClasses.h"

#include "foundation/interface/InterfaceClasses.h"
#include "preferences/tabs/AppRuleTable.h"
#include "preferences/tabs/PreferencesTabApps.h"
#include "preferences/tabs/PreferencesTabExpert.h"
#include "preferences/tabs/PreferencesTabGeneral.h"
#include "preferences/tabs/PreferencesTabShortcuts.h"
#include "preferences/tabs/PreferencesTabTouchBar.h"
#include "preferences/tabs/ScreenPicture.h"

namespace barquell {

void registerPreferencesTabs() {
    InterfaceClasses::add<AppRuleTable>("AppRuleTable");
    InterfaceClasses::add<PreferencesTabApps>("PreferencesTabApps");
    InterfaceClasses::add<PreferencesTabExpert>("PreferencesTabExpert");
    InterfaceClasses::add<PreferencesTabGeneral>("PreferencesTabGeneral");
    InterfaceClasses::add<PreferencesTabShortcuts>("PreferencesTabShortcuts");
    InterfaceClasses::add<PreferencesTabTouchBar>("PreferencesTabTouchBar");
    InterfaceClasses::add<ScreenPicture>("ScreenPicture");
}

} // namespace barquell
