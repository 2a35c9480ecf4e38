#include "platform/linux/client/GrantClient.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"
#include "platform/linux/client/TapConnection.h"

namespace barquell {

using protocol::ClientMessageType;

struct GrantClient::Wish {
    ClientMessageType type{};
    Handler onOutcome;
    std::unique_ptr<TapConnection> connection;
    std::unique_ptr<RunLoop::Timer> limit;
};

namespace {

/// A request has the person's time beside the server's own.
std::chrono::milliseconds limitOf(ClientMessageType wish) {
    const std::chrono::microseconds question(protocol::kQuestionLimit);
    return wish == ClientMessageType::RequestGrant ? kServerLimit + ceil<std::chrono::milliseconds>(question)
                                                   : kServerLimit;
}

} // namespace

GrantClient::GrantClient(QString socketPath) : _socketPath(std::move(socketPath)) {}

GrantClient::~GrantClient() = default;

void GrantClient::request(Handler onOutcome) {
    if (!_wish) {
        begin(ClientMessageType::RequestGrant, std::move(onOutcome));
    } else if (onOutcome && _wish->type == ClientMessageType::RequestGrant) {
        _wish->onOutcome = std::move(onOutcome);
    }
}

void GrantClient::withdraw(Handler onOutcome) {
    begin(ClientMessageType::WithdrawGrant, std::move(onOutcome));
}

void GrantClient::begin(ClientMessageType type, Handler onOutcome) {
    _wish = std::make_shared<Wish>();
    _wish->type = type;
    _wish->onOutcome = std::move(onOutcome);
    _wish->connection = TapConnection::open(
        _socketPath, type, [this](const protocol::ServerMessage &answer) { end(grantOutcome(answer)); },
        [this] { end(GrantOutcome::Silent); });
    if (!_wish->connection) {
        end(GrantOutcome::Unreachable);
        return;
    }
    _wish->limit = RunLoop::main().scheduleOnce(limitOf(type), [this] { end(GrantOutcome::Silent); });
}

/// Later, since the connection may be in the middle of telling.
void GrantClient::end(GrantOutcome outcome) {
    RunLoop::main().performAsync([this, outcome, wish = std::weak_ptr<Wish>(_wish)] {
        if (wish.expired()) {
            return; // another took its place, or an outcome is known already
        }
        const Handler tell = std::move(_wish->onOutcome);
        _wish.reset();
        log(grantOutcomeText(outcome));
        if (tell) {
            tell(outcome);
        }
    });
}

} // namespace barquell
