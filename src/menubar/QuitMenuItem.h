#pragma once

#include "foundation/Observable.h"

#include <QAction>
#include <QPointer>

namespace barquell {

/// A menu item that ends the program, and keeps its own key and that of the background-mode item beside it in
/// step with "LazyQuit". It observes the setting by itself, so its key follows also a write that is not to
/// echo. Main thread only.
class QuitMenuItem final : public QAction, public ChangeObserver {
    Q_OBJECT
    Q_PROPERTY(QAction *backgroundModeMenuItem READ backgroundModeMenuItem WRITE setBackgroundModeMenuItem)

public:
    explicit QuitMenuItem(QObject *parent = nullptr);
    ~QuitMenuItem() override;
    Q_DISABLE_COPY_MOVE(QuitMenuItem)

    QAction *backgroundModeMenuItem() const { return _backgroundModeMenuItem; }
    void setBackgroundModeMenuItem(QAction *item) { _backgroundModeMenuItem = item; }

    Q_INVOKABLE void awakeFromNib();

    /// Calls the method that the context names: it is both the observation's tag and its handler, and every
    /// observation that arrives here is our own.
    void observeValueForKeyPath(const QString &keyPath, Observable *object, const QVariant &newValue,
                                const ObservingContext &context) override;

    Q_INVOKABLE void apply(const QVariant &lazyQuit);

private:
    QPointer<QAction> _backgroundModeMenuItem;
};

} // namespace barquell
