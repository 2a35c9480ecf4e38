#include "Chance.h"

#include <rapidcheck.h>

namespace barquell::test {

TEST(Invariants, WithTheBarsFreeTheirClonesAreFreeAndNothingIsReorderedOrOverheard) {
    const bool held = rc::check([] {
        Chance world;
        const auto step = rc::gen::pair(rc::gen::inRange(0, Chance::kSteps),
                                        rc::gen::inRange<std::size_t>(0, Chance::kPlaces));
        const auto steps =
            *rc::gen::scale(4, rc::gen::container<std::vector<std::pair<int, std::size_t>>>(step));
        for (const auto &[what, place] : steps) {
            world.step(what, place);
            RC_ASSERT(world.isConsistent());
            RC_ASSERT(world.numbersAreInOrder());
            RC_ASSERT(world.nobodyTrespasses());
            RC_ASSERT(world.framesOut() <= tapd::FrameQueue::kRoom);
        }
        world.end();
        RC_ASSERT(world.isAtRest());
        RC_ASSERT(!world.isOvertaken());
    });
    EXPECT_TRUE(held);
}

} // namespace barquell::test
