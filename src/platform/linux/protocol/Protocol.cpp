#include "platform/linux/protocol/Protocol.h"

#include <algorithm>
#include <cstring>

namespace barquell::protocol {

namespace {

template <typename Message>
std::optional<Message> messageIn(std::span<const std::byte> packet) {
    if (packet.size() != sizeof(Message)) {
        return std::nullopt;
    }
    Message message;
    std::memcpy(&message, packet.data(), sizeof message);
    return message;
}

/// The message with those fields alone that its type names, or of type 0 where there is no such type.
ClientMessage withNamedFields(const ClientMessage &message) {
    ClientMessage named;
    named.type = message.type;
    switch (message.type) {
    case ClientMessageType::Hello:
    case ClientMessageType::RequestGrant:
    case ClientMessageType::WithdrawGrant:
        named.version = message.version;
        return named;
    case ClientMessageType::CreateTap:
        named.eventMask = message.eventMask;
        return named;
    case ClientMessageType::SetEnabled:
        named.on = message.on;
        return named;
    case ClientMessageType::DestroyTap:
        return named;
    case ClientMessageType::Verdict:
        named.frame = message.frame;
        named.on = message.on;
        return named;
    }
    return {};
}

void copyFrame(const ServerMessage &from, ServerMessage &to) {
    to.frame = from.frame;
    to.flags = from.flags;
    to.touchCounts = from.touchCounts;
    to.listedTouches = from.listedTouches;
    std::copy_n(from.touches.begin(), std::min<std::size_t>(from.listedTouches, kListedTouches),
                to.touches.begin());
}

ServerMessage withNamedFields(const ServerMessage &message) {
    ServerMessage named;
    named.type = message.type;
    switch (message.type) {
    case ServerMessageType::Welcome:
        named.version = message.version;
        named.flags = message.flags;
        named.holder = message.holder;
        named.inFront = message.inFront;
        [[fallthrough]];
    case ServerMessageType::Bars:
        named.barsKnown = message.barsKnown;
        named.barsGrabbed = message.barsGrabbed;
        return named;
    case ServerMessageType::Refused:
        named.version = message.version;
        named.reason = message.reason;
        return named;
    case ServerMessageType::Frame:
        copyFrame(message, named);
        return named;
    case ServerMessageType::FlagsChanged:
        named.flags = message.flags;
        return named;
    case ServerMessageType::TapCreated:
    case ServerMessageType::DisabledByTimeout:
    case ServerMessageType::Granted:
    case ServerMessageType::Withdrawn:
        return named;
    }
    return {};
}

bool isFraction(float value) {
    return value >= 0.0F && value <= 1.0F; // and so a number
}

bool isPlausible(const Touch &touch) {
    const bool onePhase = touch.phase != 0 && (touch.phase & (touch.phase - 1)) == 0;
    return onePhase && touch.phase < 1U << kPhases && isFraction(touch.x) && isFraction(touch.y);
}

bool isPlausibleFrame(const ServerMessage &message) {
    if (message.frame == 0 || message.listedTouches > kListedTouches) {
        return false;
    }
    const auto listed = std::span(message.touches).first(message.listedTouches);
    for (std::size_t n = 0; n < kPhases; ++n) {
        const auto inPhase = std::count_if(listed.begin(), listed.end(),
                                           [n](const Touch &touch) { return touch.phase == 1U << n; });
        if (inPhase > message.touchCounts.at(n)) {
            return false;
        }
    }
    return std::all_of(listed.begin(), listed.end(), isPlausible);
}

bool isPlausible(const ServerMessage &message) {
    switch (message.type) {
    case ServerMessageType::Frame:
        return isPlausibleFrame(message);
    case ServerMessageType::Refused:
        return message.reason >= Refusal::Version && message.reason <= Refusal::Failed;
    case ServerMessageType::Welcome:
    case ServerMessageType::Bars:
        return message.holder >= kAnotherUser && message.inFront <= 1 &&
               message.barsGrabbed <= message.barsKnown;
    default:
        return true;
    }
}

} // namespace

std::optional<ClientMessage> decodeClientMessage(std::span<const std::byte> packet) {
    const auto message = messageIn<ClientMessage>(packet);
    const bool known = message && message->on <= 1 && withNamedFields(*message) == *message;
    return known && message->type != ClientMessageType{} ? message : std::nullopt;
}

std::optional<ServerMessage> decodeServerMessage(std::span<const std::byte> packet) {
    const auto message = messageIn<ServerMessage>(packet);
    const bool known = message && isPlausible(*message) && withNamedFields(*message) == *message;
    return known && message->type != ServerMessageType{} ? message : std::nullopt;
}

int touchCount(const ServerMessage &frame, TouchPhases phases) {
    int count = 0;
    for (std::size_t n = 0; n < kPhases; ++n) {
        count += (phases >> n & 1U) != 0 ? frame.touchCounts.at(n) : 0;
    }
    return count;
}

} // namespace barquell::protocol
