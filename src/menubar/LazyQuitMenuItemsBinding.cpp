#include "menubar/LazyQuitMenuItemsBinding.h"

#include "menubar/LazyQuit.h"

namespace barquell {

void LazyQuitMenuItemsBinding::awakeFromNib() {
    subscribeToUserDefaultsKeyPath(lazyQuitKey(), "observeLazyQuit:", true);
}

void LazyQuitMenuItemsBinding::observeLazyQuit(const QVariant &lazyQuit) {
    applyLazyQuit(lazyQuit, _quitMenuItem, _backgroundModeMenuItem);
}

} // namespace barquell
