#include "platform/linux/session/ApplicationObject.h"

namespace barquell {

ApplicationObject::ApplicationObject(Reopen reopenHandler) : reopen(std::move(reopenHandler)) {
    new FreedesktopApplication(*this); // NOLINT: adaptors belong to their object
    new ScriptInterface(*this);        // NOLINT
}

bool ApplicationObject::exportOn(QDBusConnection connection) {
    _connectionName = connection.name();
    return connection.registerObject(path(), this);
}

void ApplicationObject::performInTurn(const QDBusMessage &call, const char *signature,
                                      std::function<void()> task) {
    call.setDelayedReply(true);
    if (call.signature() != QLatin1String(signature)) {
        answer(call, call.createErrorReply(QDBusError::UnknownMethod, QStringLiteral("Wrong arguments")));
        return;
    }
    const bool queued = _calls.add(call.member(), [this, call, task = std::move(task)] {
        task();
        answer(call, call.createReply());
    });
    if (!queued) {
        answer(call, call.createErrorReply(QDBusError::LimitsExceeded, QStringLiteral("Too many calls")));
    }
}

void ApplicationObject::answer(const QDBusMessage &call, const QDBusMessage &reply) {
    if (call.isReplyRequired()) {
        QDBusConnection(_connectionName).send(reply);
    }
}

void FreedesktopApplication::Activate(const QVariantMap &platform_data) {
    _object.reopen(platform_data);
}

void FreedesktopApplication::Open(const QStringList & /*uris*/, const QVariantMap &platform_data) {
    _object.reopen(platform_data); // it has no documents
}

void FreedesktopApplication::ActivateAction(const QString & /*action_name*/,
                                            const QVariantList & /*parameter*/,
                                            const QVariantMap & /*platform_data*/) {}

void ScriptInterface::ToggleTouchBar(const QDBusMessage &call) {
    if (const auto &toggle = _object.commands.toggleTouchBar) {
        _object.performInTurn(call, "", toggle);
    }
}

void ScriptInterface::SetTouchBarActive(bool active, const QDBusMessage &call) {
    if (const auto &set = _object.commands.setTouchBarActive) {
        _object.performInTurn(call, "b", [set, active] { set(active); });
    }
}

QVariantMap ScriptInterface::Status() {
    return _object.commands.status ? _object.commands.status() : QVariantMap();
}

} // namespace barquell
