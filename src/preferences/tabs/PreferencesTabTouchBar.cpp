#include "preferences/tabs/PreferencesTabTouchBar.h"

#include "platform/EventTap.h"
#include "platform/Platform.h"
#include "preferences/PreferencesWindowController.h"

namespace barquell {

void PreferencesTabTouchBar::viewDidLoad() {
    const EventTaps *taps = platform().eventTaps;
    if (_clearPauseKeysButton) {
        _clearPauseKeysButton->setVisible(taps && taps->canChangeFlags());
    }
}

void PreferencesTabTouchBar::showApps(const QVariant & /*sender*/) {
    if (owner()) {
        owner()->preferencesTabWantsToAppear(_appsTab);
    }
}

} // namespace barquell
