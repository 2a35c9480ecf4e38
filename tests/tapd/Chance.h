#pragma once

#include "Fakes.h"

#include <deque>

namespace barquell::test {

/// Two bars, a hand on each, a client that behaves and one of another user, who come to the front and go,
/// have grants and lose them; all moved by numbers that somebody makes up. Positions only grow, so that what
/// is overtaken shows. The bars check by themselves what FakeBar promises.
class Chance : public TapdTest {
public:
    static constexpr int kSteps = 22;
    static constexpr std::size_t kPlaces = 6; ///< three slots on each bar

    Chance();
    ~Chance() override { server.barRemoved(second); }
    Chance(const Chance &) = delete;
    Chance &operator=(const Chance &) = delete;
    void TestBody() override {}

    /// One of kSteps things happens, mostly to one of kPlaces.
    void step(int what, std::size_t place);

    /// A packet of a second client, which need not make sense.
    void sayAnything(std::span<const std::byte> packet);

    /// A device tells something that is no touch.
    void makeNoise(std::size_t place, const evdev::InputEvent &event);

    /// With a bar free of fingers and no frame out, its clone is free of fingers.
    bool isConsistent() const;
    std::size_t framesOut() const { return _out.size(); }
    bool numbersAreInOrder() const { return _inOrder; }
    /// Keys and touches go to who is in front, and nobody without a grant is welcome.
    bool nobodyTrespasses() const { return !_trespassed; }
    bool isOvertaken() const { return bar.overtaken || second.overtaken; }

    /// All fingers leave, all clients go, and time passes: then nothing may be held.
    void end();
    bool isAtRest() const;

private:
    struct Place {
        FakeBar &bar;
        std::size_t slot;
        bool isDown() const { return slot < bar.held().size() && bar.held()[slot].trackingId >= 0; }
    };

    Place at(std::size_t place);
    void touch(Place place);
    static void lift(Place place);
    void answer(bool pass);
    void arrive();
    void leave();
    void recreate(std::size_t how);
    void loseEvents(Place place);
    void replug(FakeBar &device);
    void changeFront(std::size_t how);
    void changeGrant(const FakeLink &of);
    void wish(std::size_t how);
    void connectOther(protocol::ClientMessageType word);
    void watch(const FakeLink &hearer, const protocol::ServerMessage &message);
    void catchUp();
    void listen();

    FakeBar second;
    std::deque<std::uint64_t> _out; // of the client that behaves
    std::uint64_t _lastNumber = 0;
    std::int32_t _x = 0;
    bool _here = false;
    bool _otherHere = false;
    bool _otherHasFrames = false;
    bool _inOrder = true;
    bool _trespassed = false;
    tapd::Front _front = tapd::Front::everybody();
};

} // namespace barquell::test
