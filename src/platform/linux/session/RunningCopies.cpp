#include "platform/linux/session/RunningCopies.h"

#include "foundation/Bundle.h"
#include "foundation/Log.h"

#include <QCoreApplication>

#include <utility>

namespace barquell {

void RunningCopies::enter() {
    const bool isFirst = !std::exchange(_entered, true);
    const RunningCopy::Claim claim = _mark.claim();
    if (_bus.isConnected()) {
        constexpr uint kQueueWithoutReplacing = 0;
        const QDBusMessage reply = _bus.call(MessageBus::question(
            QStringLiteral("RequestName"), {Bundle::mainBundleIdentifier(), kQueueWithoutReplacing}));
        if (reply.type() != QDBusMessage::ReplyMessage) {
            log(QStringLiteral("The session bus refuses the program's name: %1")
                    .arg(cleanLine(reply.errorMessage(), kLongestQuote)));
        }
    } else if (isFirst && claim == RunningCopy::Claim::Impossible) {
        log(QStringLiteral("No mark of this copy can be left; a second one would not be noticed"));
    }
}

int RunningCopies::count(const QString &bundleIdentifier) {
    if (const auto owners = queuedOwners(bundleIdentifier)) {
        return *owners;
    }
    if (bundleIdentifier != Bundle::mainBundleIdentifier()) {
        return 0;
    }
    const int here = _entered ? 1 : 0;
    const auto holder = RunningCopy::processId();
    const bool another = holder && *holder != QCoreApplication::applicationPid();
    return here + (another ? 1 : 0);
}

std::optional<int> RunningCopies::queuedOwners(const QString &name) const {
    if (!_bus.isConnected() ||
        name.startsWith(QLatin1Char(':'))) { // no identifier, but a connection's own name
        return std::nullopt;
    }
    const QDBusMessage reply = _bus.call(MessageBus::question(QStringLiteral("ListQueuedOwners"), {name}));
    if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1String("as")) {
        return static_cast<int>(reply.arguments().constFirst().toStringList().size());
    }
    if (reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner")) {
        return 0;
    }
    return std::nullopt;
}

} // namespace barquell
