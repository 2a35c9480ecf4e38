#pragma once

#include "foundation/Selector.h"

#include <QObject>
#include <QPointer>

namespace barquell {

/// Whom to send what; the target is held weakly.
class ShortcutMonitorTargetActions {
public:
    ShortcutMonitorTargetActions(QObject *target, Selector action)
        : _target(target), _action(std::move(action)) {}

    QObject *target() const { return _target; }
    void setTarget(QObject *target) { _target = target; }

    const Selector &action() const { return _action; }
    void setAction(const Selector &action) { _action = action; }

private:
    QPointer<QObject> _target;
    Selector _action;
};

} // namespace barquell
