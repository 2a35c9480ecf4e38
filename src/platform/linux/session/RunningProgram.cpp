#include "platform/linux/session/RunningProgram.h"

#include "foundation/Bundle.h"
#include "platform/linux/session/ApplicationObject.h"
#include "platform/linux/session/MessageBus.h"

#include <QDBusArgument>

namespace barquell {

namespace {

constexpr int kLongestCall = 5000; // milliseconds

const QString kConnection = QStringLiteral("barquell-command");

QDBusConnection connect() {
    const QString address = MessageBus::sessionAddress();
    return address.isEmpty() ? QDBusConnection(kConnection)
                             : QDBusConnection::connectToBus(address, kConnection);
}

} // namespace

RunningProgram::RunningProgram() : _connection(connect()) {}

RunningProgram::~RunningProgram() {
    QDBusConnection::disconnectFromBus(kConnection);
}

std::optional<qint64> RunningProgram::processId() const {
    const QDBusMessage reply =
        askBus(QStringLiteral("GetConnectionUnixProcessID"), {Bundle::mainBundleIdentifier()});
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty()) {
        return std::nullopt;
    }
    return reply.arguments().constFirst().toLongLong();
}

RunningProgram::Outcome RunningProgram::show() {
    return call(QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"), {QVariantMap()});
}

RunningProgram::Outcome RunningProgram::quit() {
    if (!hasBus()) {
        return Outcome::NoBus;
    }
    if (!isRunning()) {
        return Outcome::NotRunning;
    }
    _connection.send(QDBusMessage::createSignal(QStringLiteral("/"), Bundle::mainBundleIdentifier(),
                                                QStringLiteral("quit")));
    // An answer to what is asked after it shows that the bus has passed it on, before this process ends.
    askBus(QStringLiteral("GetId"));
    return Outcome::Done;
}

RunningProgram::Outcome RunningProgram::status(QVariantMap &status) {
    QVariantList results;
    const Outcome outcome = call(Bundle::mainBundleIdentifier(), QStringLiteral("Status"), {}, &results);
    if (outcome == Outcome::Done && !results.isEmpty()) {
        status = qdbus_cast<QVariantMap>(results.constFirst());
    }
    return outcome;
}

RunningProgram::Outcome RunningProgram::call(const QString &interface, const QString &member,
                                             const QVariantList &arguments, QVariantList *results) {
    if (!hasBus()) {
        return Outcome::NoBus;
    }
    QDBusMessage message = QDBusMessage::createMethodCall(Bundle::mainBundleIdentifier(),
                                                          ApplicationObject::path(), interface, member);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    const QDBusMessage reply = _connection.call(message, QDBus::Block, kLongestCall);
    if (reply.type() == QDBusMessage::ReplyMessage) {
        if (results) {
            *results = reply.arguments();
        }
        return Outcome::Done;
    }
    if (!isRunning()) {
        return Outcome::NotRunning;
    }
    const bool isSilent = QDBusError(reply).type() == QDBusError::NoReply;
    return isSilent ? Outcome::Silent : Outcome::Refused;
}

QDBusMessage RunningProgram::askBus(const QString &member, const QVariantList &arguments) const {
    return _connection.call(MessageBus::question(member, arguments), QDBus::Block, kLongestCall);
}

bool RunningProgram::isRunning() const {
    return processId().has_value();
}

} // namespace barquell
