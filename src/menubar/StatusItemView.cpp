#include "menubar/StatusItemView.h"

#include "blocking/TrustedProcessChecker.h"

namespace barquell {

bool StatusItemView::mouseDown(const StatusItemClick &click) {
    return route(click, (click.modifierFlags & kFlagControl) != 0);
}

bool StatusItemView::rightMouseDown(const StatusItemClick &click) {
    return route(click, (click.modifierFlags & kFlagControl) == 0);
}

bool StatusItemView::route(const StatusItemClick &click, bool right) {
    auto *delegate = dynamic_cast<StatusItemViewDelegate *>(_eventDelegate.data());
    if (delegate && (right ? delegate->statusItemViewRightMouseDown(*this, click)
                           : delegate->statusItemViewMouseDown(*this, click))) {
        return true;
    }
    TrustedProcessChecker::checkIsTrustedDelayObservers();
    return false;
}

} // namespace barquell
