#include "foundation/Selector.h"

#include <array>

namespace barquell {

namespace {

bool takesPrefix(const QMetaMethod &method) {
    static constexpr std::array<int, 3> kTypes{QMetaType::QVariant, QMetaType::Bool, QMetaType::QString};
    for (int i = 0; i < method.parameterCount(); ++i) {
        if (static_cast<std::size_t>(i) >= kTypes.size() ||
            method.parameterType(i) != kTypes.at(static_cast<std::size_t>(i))) {
            return false;
        }
    }
    return true;
}

} // namespace

QMetaMethod Selector::resolvedOn(const QObject &receiver) const {
    const QByteArray function = _name.split(':').constFirst();
    const auto arguments = _name.count(':');
    const QMetaObject *meta = receiver.metaObject();
    for (int i = meta->methodCount() - 1; i >= 0; --i) {
        const QMetaMethod method = meta->method(i);
        if (method.name() == function && method.parameterCount() == arguments && takesPrefix(method)) {
            return method;
        }
    }
    return {};
}

void invoke(const QMetaMethod &method, QObject &receiver, const QVariant &value, bool init,
            const QString &keyPath) {
    switch (method.parameterCount()) {
    case 0:
        method.invoke(&receiver, Qt::DirectConnection);
        break;
    case 1:
        method.invoke(&receiver, Qt::DirectConnection, Q_ARG(QVariant, value));
        break;
    case 2:
        method.invoke(&receiver, Qt::DirectConnection, Q_ARG(QVariant, value), Q_ARG(bool, init));
        break;
    default:
        method.invoke(&receiver, Qt::DirectConnection, Q_ARG(QVariant, value), Q_ARG(bool, init),
                      Q_ARG(QString, keyPath));
        break;
    }
}

} // namespace barquell
