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
    _stage = Stage::Welcome;
    ServerMessage message = barsMessage(ServerMessageType::Welcome, state);
    message.version = protocol::kVersion;
    message.flags = _inFront ? state.flags : 0;
    message.holder = holder;
    message.inFront = _inFront ? 1 : 0;
    return tell(message);
}

std::int32_t Client::processFor(const Client &asking) const {
    constexpr std::uint32_t kRoot = 0;
    return asking.user() == kRoot || asking.user() == user() ? _link->process() : protocol::kAnotherUser;
}

bool Client::tell(ServerMessageType type) {
    return tell(messageOf(type));
}

void Client::setInFront(bool inFront) {
    if (_inFront != inFront) {
        _inFront = inFront;
        _owesFlags = inFront && isWelcome();
    }
}

bool Client::refuse(protocol::Refusal reason) {
    ServerMessage message = messageOf(ServerMessageType::Refused);
    message.reason = reason;
    message.version = protocol::kVersion;
    return tell(message);
}

void Client::settle(const PublicState &state) {
    if (_owesDisabled) {
        _owesDisabled = !tell(ServerMessageType::DisabledByTimeout);
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
