#pragma once

#include "foundation/Selector.h"

#include <QObject>
#include <QPointer>

namespace barquell {

/// Sends the action of a button or menu item, whose child it is, to a target.
class ActionSender final : public QObject {
    Q_OBJECT

public:
    /// Without a target it is sent to whoever is the application delegate then.
    ActionSender(QObject &sender, QObject *target, Selector selector);

    /// With the button or item as the argument; said in one line where nobody takes it.
    void send() const;

    /// An item that is chosen by its key was not asked for when a menu opened, so it is now.
    void sendIfValid() const;

    /// What the target's validateMenuItem(QObject *) answers; true where it has none.
    bool isValid() const;

private:
    QObject *target() const;

    const bool _toDelegate;
    QPointer<QObject> _target;
    Selector _selector;
};

} // namespace barquell
