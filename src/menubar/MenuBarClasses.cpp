#include "menubar/MenuBarClasses.h"

#include "foundation/interface/InterfaceClasses.h"
#include "menubar/LazyQuitMenuItemsBinding.h"
#include "menubar/PassiveImageView.h"
#include "menubar/QuitMenuItem.h"
#include "menubar/StatusItemController.h"

namespace barquell {

void registerMenuBarClasses() {
    InterfaceClasses::add<LazyQuitMenuItemsBinding>("LazyQuitMenuItemsBinding");
    InterfaceClasses::add<PassiveImageView>("PassiveImageView");
    InterfaceClasses::add<QuitMenuItem>("QuitMenuItem");
    InterfaceClasses::add<StatusItemController>("StatusItemController");
}

} // namespace barquell
