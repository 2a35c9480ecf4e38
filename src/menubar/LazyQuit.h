#pragma once

#include <QString>

class QAction;
class QVariant;

namespace barquell {

/// "LazyQuit": the key "q" only sends the program to the background, and the real quit has no key. Nothing is
/// registered for it, so it is off until someone sets it.
QString lazyQuitKey();

/// Gives both items the keys that go with a value of "LazyQuit"; an item may be missing.
void applyLazyQuit(const QVariant &lazyQuit, QAction *quitMenuItem, QAction *backgroundModeMenuItem);

} // namespace barquell
