#include "platform/linux/client/GrantClient.h"

#include "foundation/Log.h"
#include "foundation/RunLoop.h"

namespace barquell {

using protocol::ClientMessageType;

GrantClient::GrantClient(QString socketPath) : _socketPath(std::move(socketPath)) {}

GrantClient::~GrantClient() = default;

void GrantClient::request(Handler onOutcome) {
    if (!_wish) {
        begin(ClientMessageType::RequestGrant, std::move(onOutcome));
    } else if (onOutcome && _wish == ClientMessageType::RequestGrant) {
        _onOutcome = std::move(onOutcome);
    }
}

void GrantClient::withdraw(Handler onOutcome) {
    begin(ClientMessageType::WithdrawGrant, std::move(onOutcome));
}

void GrantClient::begin(ClientMessageType wish, Handler onOutcome) {
    _alive = std::make_shared<char>();
    _wish = wish;
    _onOutcome = std::move(onOutcome);
    _connection = TapConnection::open(
        _socketPath, wish, [this](const protocol::ServerMessage &answer) { end(grantOutcome(answer)); },
        [this] { end(GrantOutcome::Silent); });
    if (!_connection) {
        end(GrantOutcome::Unreachable);
    }
}

/// Later, since the connection may be in the middle of telling.
void GrantClient::end(GrantOutcome outcome) {
    RunLoop::main().performAsync([this, outcome, alive = std::weak_ptr<char>(_alive)] {
        if (alive.expired()) {
            return; // another wish took its place, or an outcome is known already
        }
        _alive.reset();
        _connection.reset();
        _wish.reset();
        log(grantOutcomeText(outcome));
        if (const Handler tell = std::exchange(_onOutcome, {})) {
            tell(outcome);
        }
    });
}

} // namespace barquell
