#include "platform/linux/protocol/Protocol.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace barquell::protocol;

void require(bool condition, const char *what) {
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}

template <typename Message>
void requireSamePacket(const Message &message, std::span<const std::byte> packet) {
    const auto again = packetOf(message);
    require(std::equal(again.begin(), again.end(), packet.begin(), packet.end()),
            "a message is the packet it was read from");
}

void checkFrame(const ServerMessage &frame) {
    require(frame.listedTouches <= kListedTouches, "no touch is listed that is not there");
    require(touchCount(frame, ~0U) >= frame.listedTouches, "all listed touches are counted");
    for (std::size_t i = 0; i < frame.listedTouches; ++i) {
        const Touch &touch = frame.touches.at(i);
        require(touch.x >= 0 && touch.x <= 1 && touch.y >= 0 && touch.y <= 1, "a touch is on the bar");
        require(touchCount(frame, touch.phase) > 0, "each listed phase is counted");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const auto packet = std::as_bytes(std::span(data, size));
    if (const auto message = decodeClientMessage(packet)) {
        requireSamePacket(*message, packet);
        require(message->on <= 1, "on is a truth value");
    }
    if (const auto message = decodeServerMessage(packet)) {
        if (message->type == ServerMessageType::Frame) {
            checkFrame(*message);
        }
        // A float's zero has two signs, so the bytes may differ where the values do not.
        require(decodeServerMessage(packetOf(*message)) == message, "what is written is what was read");
    }
    return 0;
}
