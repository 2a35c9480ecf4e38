#include "preferences/PreferencesClasses.h"

#include "foundation/interface/InterfaceClasses.h"
#include "preferences/ContainerView.h"
#include "preferences/PreferencesWindow.h"

namespace barquell {

void registerPreferencesClasses() {
    InterfaceClasses::add<ContainerView>("ContainerView");
    InterfaceClasses::add<ContentWindow>("ContentWindow");
    InterfaceClasses::add<PreferencesWindow>("PreferencesWindow");
}

} // namespace barquell
