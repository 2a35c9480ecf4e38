#include "shortcuts/controls/ShortcutControls.h"

#include "foundation/interface/InterfaceClasses.h"
#include "shortcuts/controls/ShortcutCaptureButton.h"
#include "shortcuts/controls/ShortcutMenuItem.h"

namespace barquell {

void registerShortcutControls() {
    InterfaceClasses::add<ShortcutCaptureButton>("ShortcutCaptureButton");
    InterfaceClasses::add<ShortcutMenuItem>("ShortcutMenuItem");
}

} // namespace barquell
