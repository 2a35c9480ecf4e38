#pragma once

#include "observing/KeyValueObserver.h"

#include <QAction>
#include <QPointer>

namespace barquell {

/// Keeps the keys of a quit item and a background-mode item in step with "LazyQuit", where the quit item is
/// no QuitMenuItem. Main thread only.
class LazyQuitMenuItemsBinding final : public KeyValueObserver {
    Q_OBJECT
    Q_PROPERTY(QAction *quitMenuItem READ quitMenuItem WRITE setQuitMenuItem)
    Q_PROPERTY(QAction *backgroundModeMenuItem READ backgroundModeMenuItem WRITE setBackgroundModeMenuItem)

public:
    using KeyValueObserver::KeyValueObserver;

    QAction *quitMenuItem() const { return _quitMenuItem; }
    void setQuitMenuItem(QAction *item) { _quitMenuItem = item; }
    QAction *backgroundModeMenuItem() const { return _backgroundModeMenuItem; }
    void setBackgroundModeMenuItem(QAction *item) { _backgroundModeMenuItem = item; }

    Q_INVOKABLE void awakeFromNib();
    Q_INVOKABLE void observeLazyQuit(const QVariant &lazyQuit);

private:
    QPointer<QAction> _quitMenuItem;
    QPointer<QAction> _backgroundModeMenuItem;
};

} // namespace barquell
