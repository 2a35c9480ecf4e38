#include "menubar/QuitMenuItem.h"

#include "foundation/Selector.h"
#include "foundation/UserDefaults.h"
#include "menubar/LazyQuit.h"

namespace barquell {

QuitMenuItem::QuitMenuItem(QObject *parent) : QAction(parent) {
    UserDefaults::standard().addObserver(*this, lazyQuitKey(), Selector("apply:").resolvedOn(*this));
}

QuitMenuItem::~QuitMenuItem() {
    UserDefaults::standard().removeObserver(*this, lazyQuitKey());
}

void QuitMenuItem::awakeFromNib() {
    apply(UserDefaults::standard().objectForKey(lazyQuitKey()));
}

void QuitMenuItem::observeValueForKeyPath(const QString &keyPath, Observable * /*object*/,
                                          const QVariant &newValue, const ObservingContext &context) {
    invoke(std::get<QMetaMethod>(context), *this, nilForNullObject(newValue), false, keyPath);
}

void QuitMenuItem::apply(const QVariant &lazyQuit) {
    applyLazyQuit(lazyQuit, this, _backgroundModeMenuItem);
}

} // namespace barquell
