#include "preferences/PreferencesClasses.h"

#include "foundation/interface/InterfaceClasses.h"
#include "preferences/ContainerView.h"
#include "preferences/PreferencesWindow.h"
#include "preferences/TabItemAccessible.h"

namespace barquell {

void registerPreferencesClasses() {
    tellTabItemsAsChoices();
    InterfaceClasses::add<ContainerView>("ContainerView");
    InterfaceClasses::add<ContentWindow>("ContentWindow");
    InterfaceClasses::add<PreferencesWindow>("PreferencesWindow");
}

} // namespace barquell
