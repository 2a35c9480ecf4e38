#include "preferences/tabs/PreferencesTabGeneral.h"

#include "foundation/NotificationCenter.h"
#include "menubar/LikeTheAppTracker.h"

namespace barquell {

void PreferencesTabGeneral::viewDidLoad() {
    NotificationCenter::defaultCenter().addObserver(
        *this, likeTheAppButtonNotification(), [this](const Notification &) { updateLikeTheAppButton(); });
}

void PreferencesTabGeneral::viewWillAppear() {
    updateLikeTheAppButton();
}

void PreferencesTabGeneral::updateLikeTheAppButton() {
    if (_likeTheAppButton) {
        _likeTheAppButton->setHidden(!LikeTheAppTracker::canDisplayButton());
    }
}

void PreferencesTabGeneral::likeTheAppDidPress(const QVariant & /*sender*/) {
    LikeTheAppTracker::showDialogModalForWindow(view()->window());
}

} // namespace barquell
