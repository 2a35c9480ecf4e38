#include "app/replay/Timeline.h"

#include <gmock/gmock.h>

#include <utility>

namespace barquell::test {

using recording::RecordedDevice;
using replay::Timeline;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

RecordedDevice device(std::initializer_list<std::int64_t> times) {
    RecordedDevice device;
    std::uint16_t code = 0;
    for (const std::int64_t time : times) {
        device.events.push_back({time, 0, code++, 0});
    }
    return device;
}

/// Device and code of each step.
std::vector<std::pair<std::size_t, int>> walk(const std::vector<RecordedDevice> &devices) {
    std::vector<std::pair<std::size_t, int>> steps;
    for (Timeline timeline(devices); !timeline.atEnd();) {
        const auto [index, event] = timeline.next();
        steps.emplace_back(index, event.code);
    }
    return steps;
}

} // namespace

TEST(TimelineTest, EventsOfSeveralDevicesComeInTheOrderOfTime) {
    EXPECT_THAT(
        walk({device({1, 4}), device({2, 3, 5})}),
        ElementsAre(std::pair(0, 0), std::pair(1, 0), std::pair(1, 1), std::pair(0, 1), std::pair(1, 2)));
}

TEST(TimelineTest, AtEqualTimesTheFirstDeviceComesFirstAndEachKeepsItsOrder) {
    EXPECT_THAT(walk({device({7, 7}), device({7, 7})}),
                ElementsAre(std::pair(0, 0), std::pair(0, 1), std::pair(1, 0), std::pair(1, 1)));
}

TEST(TimelineTest, DevicesWithoutEventsAreSkipped) {
    EXPECT_THAT(walk({device({}), device({1})}), ElementsAre(std::pair(1, 0)));
    EXPECT_THAT(walk({}), IsEmpty());
}

} // namespace barquell::test
