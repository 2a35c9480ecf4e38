#include "foundation/interface/ActionSender.h"

#include "foundation/Log.h"
#include "platform/AppLifecycle.h"
#include "platform/Platform.h"

namespace barquell {

ActionSender::ActionSender(QObject &sender, QObject *target, Selector selector)
    : QObject(&sender), _toDelegate(!target), _target(target), _selector(std::move(selector)) {}

QObject *ActionSender::target() const {
    if (!_toDelegate) {
        return _target;
    }
    const AppLifecycle *lifecycle = platform().appLifecycle;
    return lifecycle ? dynamic_cast<QObject *>(lifecycle->delegate()) : nullptr;
}

void ActionSender::send() const {
    QObject *receiver = target();
    const QMetaMethod method = receiver ? _selector.resolvedOn(*receiver) : QMetaMethod();
    if (method.isValid()) {
        invoke(method, *receiver, QVariant::fromValue(parent()), false, QString());
    } else {
        log(QStringLiteral("Nobody takes the action %1").arg(_selector.name()));
    }
}

void ActionSender::sendIfValid() const {
    if (isValid()) {
        send();
    }
}

bool ActionSender::isValid() const {
    QObject *receiver = target();
    if (!receiver) {
        return true;
    }
    const QMetaObject *meta = receiver->metaObject();
    const QMetaMethod method = meta->method(meta->indexOfMethod("validateMenuItem(QObject*)"));
    bool valid = true;
    if (method.isValid()) {
        method.invoke(receiver, Qt::DirectConnection, Q_RETURN_ARG(bool, valid), Q_ARG(QObject *, parent()));
    }
    return valid;
}

} // namespace barquell
