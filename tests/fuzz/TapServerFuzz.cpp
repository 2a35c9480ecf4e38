#include "tapd/Chance.h"

#include <cstdlib>

// Leads the rules of the tap server through whatever a client may say and a device may report, in an order
// that the bytes choose: two bytes a step, and behind a packet's step the packet.
namespace {

using namespace barquell;
using namespace barquell::test;

void require(bool condition, const char *what) {
    if (!condition) {
        std::fprintf(stderr, "broken promise: %s\n", what);
        std::abort();
    }
}

void requirePromises(const Chance &world) {
    require(world.isConsistent(), "no finger stays on a clone whose bar is free");
    require(world.numbersAreInOrder(), "frames are numbered in their order");
    require(world.nobodyTrespasses(), "keys and touches are for who is in front and has a grant");
    require(world.framesOut() <= tapd::FrameQueue::kRoom, "the queue is bounded");
}

/// What a bar may say that is no touch, and that events were lost.
constexpr std::array<std::pair<std::uint16_t, std::uint16_t>, 6> kNoise{{
    {evdev::kEvSyn, evdev::kSynDropped},
    {evdev::kEvMsc, evdev::kMscTimestamp},
    {evdev::kEvKey, evdev::kBtnTouch},
    {evdev::kEvAbs, evdev::kAbsX},
    {evdev::kEvAbs, 0x3b}, // ABS_MT_DISTANCE, which no bar has
    {2, 0},                // REL_X
}};

class Bytes {
public:
    Bytes(const std::uint8_t *data, std::size_t size) : _left(std::as_bytes(std::span(data, size))) {}

    bool isEmpty() const { return _left.empty(); }
    std::span<const std::byte> take(std::size_t size) {
        const auto taken = _left.first(std::min(size, _left.size()));
        _left = _left.subspan(taken.size());
        return taken;
    }
    unsigned number() {
        const auto one = take(1);
        return one.empty() ? 0 : std::to_integer<unsigned>(one.front());
    }

private:
    std::span<const std::byte> _left;
};

/// Mostly whole messages of a known type, or the rules behind them would hardly be met.
void speak(Chance &world, Bytes &bytes, unsigned how) {
    if (how >= 200) {
        world.sayAnything(bytes.take(how - 200));
        return;
    }
    protocol::ClientMessage message;
    message.type = static_cast<protocol::ClientMessageType>(how % 8);
    if (message.type == protocol::ClientMessageType::Hello ||
        message.type >= protocol::ClientMessageType::RequestGrant) {
        message.version = protocol::kVersion;
    } else if (message.type == protocol::ClientMessageType::CreateTap) {
        message.eventMask = maskOf(EventType::Gesture);
    } else if (message.type == protocol::ClientMessageType::Verdict) {
        message.frame = bytes.number();
        message.on = how / 8 % 2;
    } else {
        message.on = how / 8 % 3;
    }
    world.sayAnything(protocol::packetOf(message));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***words) {
    testing::InitGoogleMock(count, *words);
    testing::FLAGS_gtest_break_on_failure = true; // what the fakes expect is promised as well
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    Bytes bytes(data, size);
    Chance world;
    while (!bytes.isEmpty()) {
        const unsigned what = bytes.number();
        const unsigned how = bytes.number();
        if (what % 32 < Chance::kSteps) {
            world.step(static_cast<int>(what % 32), how % Chance::kPlaces);
        } else if (what % 32 < 26) {
            speak(world, bytes, how);
        } else {
            const auto &[type, code] = kNoise.at(how % kNoise.size());
            world.makeNoise(how, {0, type, code, static_cast<std::int32_t>(bytes.number())});
        }
        requirePromises(world);
    }
    world.end();
    require(world.isAtRest(), "nothing is held when all is over");
    require(!world.isOvertaken(), "no frame overtakes another");
    return 0;
}
