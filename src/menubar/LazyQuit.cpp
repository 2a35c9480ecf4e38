#include "menubar/LazyQuit.h"

#include "foundation/Values.h"
#include "menubar/KeyEquivalent.h"

namespace barquell {

QString lazyQuitKey() {
    return QStringLiteral("LazyQuit");
}

void applyLazyQuit(const QVariant &lazyQuit, QAction *quitMenuItem, QAction *backgroundModeMenuItem) {
    const bool lazy = boolValue(lazyQuit);
    if (quitMenuItem) {
        setKeyEquivalent(*quitMenuItem, lazy ? QString() : QStringLiteral("q"));
    }
    if (backgroundModeMenuItem) {
        setKeyEquivalent(*backgroundModeMenuItem, lazy ? QStringLiteral("q") : QStringLiteral("b"));
    }
}

} // namespace barquell
