#include "platform/linux/tapd/core/Client.h"

namespace barquell::tapd {

using protocol::ServerMessage;
using protocol::ServerMessageType;

namespace {

ServerMessage messageOf(ServerMessageType type) {
    ServerMessage message;
    message.type = type;
    return message;
}

ServerMessage barsMessage(ServerMessageType type, const PublicState &state) {
    ServerMessage message = messageOf(type);
    message.barsKnown = state.barsKnown;
    message.barsGrabbed = state.barsGrabbed;
    return message;
}

} // namespace

bool Client::welcome(const PublicState &state, std::int32_t holder) {
    _welcome = true;
    ServerMessage message = barsMessage(ServerMessageType::Welcome, state);
    message.version = protocol::kVersion;
    message.flags = state.flags;
    message.holder = holder;
    return tell(message);
}

std::int32_t Client::processFor(const Client &asking) const {
    constexpr std::uint32_t kRoot = 0;
    const std::uint32_t user = asking.link().user();
    return user == kRoot || user == _link->user() ? _link->process() : protocol::kAnotherUser;
}

bool Client::tapCreated() {
    return tell(messageOf(ServerMessageType::TapCreated));
}

bool Client::refuse(protocol::Refusal reason) {
    ServerMessage message = messageOf(ServerMessageType::Refused);
    message.reason = reason;
    message.version = protocol::kVersion;
    return tell(message);
}

void Client::settle(const PublicState &state) {
    if (_owesDisabled) {
        _owesDisabled = !tell(messageOf(ServerMessageType::DisabledByTimeout));
    }
    if (_owesFlags) {
        ServerMessage message = messageOf(ServerMessageType::FlagsChanged);
        message.flags = state.flags;
        _owesFlags = !tell(message);
    }
    if (_owesBars) {
        _owesBars = !tell(barsMessage(ServerMessageType::Bars, state));
    }
}

} // namespace barquell::tapd
