#include "Fakes.h"

#include "evdev/Devices.h"

#include <deque>
#include <rapidcheck.h>

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;

namespace {

constexpr std::size_t kSlots = 3;

/// Two hands of chance: one on the bar, one in the client. Positions only grow, so that what is overtaken
/// shows.
class Chance : public TapdTest {
public:
    Chance() {
        plug(bar);
        arrive();
    }
    void TestBody() override {}

    void step(int what, std::size_t slot) {
        switch (what) {
        case 0:
        case 1:
        case 2:
        case 3:
            touch(slot);
            break;
        case 4:
        case 5:
            lift(slot);
            break;
        case 6:
        case 7:
        case 8:
            answer(true);
            break;
        case 9:
        case 10:
            answer(false);
            break;
        case 11:
            later(slot == 0 ? 1s : 150ms);
            break;
        case 12:
            leaveOrArrive();
            break;
        case 13:
            recreate(slot);
            break;
        case 14:
            loseEvents(slot);
            break;
        case 15:
            replug();
            break;
        default:
            announce(bar);
        }
        listen();
    }

    /// With the bar free of fingers and no frame out, the clone is free of fingers.
    bool isConsistent() const {
        return evdev::anyContact(bar.held()) || !_out.empty() || !evdev::anyContact(bar.cloneHolds());
    }

    std::size_t framesOut() const { return _out.size(); }
    bool numbersAreInOrder() const { return _inOrder; }

    void end() {
        for (std::size_t slot = 0; slot < kSlots; ++slot) {
            lift(slot);
        }
        if (!_here) {
            arrive();
        }
        server.disconnected(client, now);
        _out.clear();
        later(1h);
    }

    const FakeBar &theBar() const { return bar; }

private:
    void touch(std::size_t slot) {
        ++_x;
        if (slot < bar.held().size() && bar.held()[slot].trackingId >= 0) {
            bar.move(slot, _x);
        } else {
            bar.down(slot, _x);
        }
        report(bar);
    }

    void lift(std::size_t slot) {
        if (slot < bar.held().size() && bar.held()[slot].trackingId >= 0) {
            bar.up(slot);
            report(bar);
        }
    }

    void answer(bool pass) {
        if (!_out.empty() && _here) {
            judge(client, _out.front(), pass);
            _out.pop_front();
        }
    }

    void arrive() {
        client.closed = false;
        hello(client);
        create(client);
        setEnabled(client, true);
        announce(bar);
        _here = true;
    }

    void leaveOrArrive() {
        if (_here) {
            server.disconnected(client, now);
            _out.clear();
            _here = false;
        } else {
            arrive();
        }
    }

    void recreate(std::size_t how) {
        if (!_here) {
            return;
        }
        if (how == 0) {
            destroy(client);
            create(client);
        }
        setEnabled(client, how != 1);
        if (how != 2) {
            _out.clear();
        }
    }

    void loseEvents(std::size_t slot) {
        ++_x;
        bar.down(slot, _x);
        bar.report();
        bar.up(slot);
        bar.report();
        lost = true;
        report(bar);
    }

    void replug() {
        server.barRemoved(bar);
        for (std::size_t slot = 0; slot < kSlots; ++slot) {
            if (slot < bar.held().size()) {
                bar.up(slot);
            }
        }
        bar.report();
        lost = false;
        plug(bar);
        announce(bar);
    }

    void listen() {
        for (const ServerMessage &message : client.take()) {
            if (message.type == ServerMessageType::Frame) {
                _inOrder = _inOrder && message.frame == ++_lastNumber;
                _out.push_back(message.frame);
            } else if (message.type == ServerMessageType::DisabledByTimeout) {
                _out.clear();
                setEnabled(client, true);
            }
        }
    }

    std::deque<std::uint64_t> _out;
    std::uint64_t _lastNumber = 0;
    std::int32_t _x = 0;
    bool _here = false;
    bool _inOrder = true;
};

} // namespace

TEST(Invariants, WithTheBarFreeTheCloneIsFreeAndNothingIsReordered) {
    const bool held = rc::check([] {
        Chance world;
        const auto step = rc::gen::pair(rc::gen::inRange(0, 17), rc::gen::inRange<std::size_t>(0, kSlots));
        const auto steps =
            *rc::gen::scale(4, rc::gen::container<std::vector<std::pair<int, std::size_t>>>(step));
        for (const auto &[what, slot] : steps) {
            world.step(what, slot);
            RC_ASSERT(world.isConsistent());
            RC_ASSERT(world.numbersAreInOrder());
            RC_ASSERT(world.framesOut() <= 128U);
        }
        world.end();
        RC_ASSERT(world.isConsistent());
        RC_ASSERT(!world.theBar().overtaken);
        RC_ASSERT(!world.theBar().grabbed && !world.theBar().hasClone);
    });
    EXPECT_TRUE(held);
}

} // namespace barquell::test
