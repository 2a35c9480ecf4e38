#include "recording/EvemuWriter.h"

#include "Data.h"

#include <rapidcheck/gtest.h>

#include <sstream>

namespace barquell::recording {
namespace {

std::string write(const evdev::DeviceDescription &device, const std::vector<evdev::InputEvent> &events) {
    std::ostringstream out;
    writeEvemuHeader(out, device);
    for (const evdev::InputEvent &event : events) {
        writeEvemuEvent(out, event);
    }
    return out.str();
}

template <std::size_t Size>
rc::Gen<std::bitset<Size>> someBits() {
    return rc::gen::map(rc::gen::container<std::vector<std::size_t>>(rc::gen::inRange<std::size_t>(0, Size)),
                        [](const std::vector<std::size_t> &numbers) {
                            std::bitset<Size> bits;
                            for (const std::size_t number : numbers) {
                                bits.set(number);
                            }
                            return bits;
                        });
}

evdev::DeviceDescription someDevice() {
    evdev::DeviceDescription device;
    device.name = *rc::gen::container<std::string>(rc::gen::inRange<char>(' ', '\x7f'));
    device.bus = *rc::gen::arbitrary<std::uint16_t>();
    device.vendor = *rc::gen::arbitrary<std::uint16_t>();
    device.product = *rc::gen::arbitrary<std::uint16_t>();
    device.version = *rc::gen::arbitrary<std::uint16_t>();
    device.properties = *someBits<evdev::kInputPropMax + 1>();
    device.keys = *someBits<evdev::kKeyMax + 1>();
    for (const int type : *rc::gen::container<std::vector<int>>(rc::gen::inRange(4, evdev::kEvMax + 1))) {
        // A type without codes says nothing that the format could hold.
        device.otherCodes[static_cast<std::uint16_t>(type)] =
            *rc::gen::suchThat(someBits<evdev::kKeyMax + 1>(), [](const auto &bits) { return bits.any(); });
    }
    for (const int code : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, evdev::kAbsMax + 1))) {
        const auto numbers = *rc::gen::arbitrary<std::array<std::int32_t, 5>>();
        device.axes[static_cast<std::uint16_t>(code)] = {numbers[0], numbers[1], numbers[2], numbers[3],
                                                         numbers[4]};
    }
    return device;
}

std::vector<evdev::InputEvent> someEvents() {
    std::vector<evdev::InputEvent> events;
    std::int64_t time = 0;
    for (const int step : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 1 << 28))) {
        time += step;
        events.push_back({time, *rc::gen::arbitrary<std::uint16_t>(), *rc::gen::arbitrary<std::uint16_t>(),
                          *rc::gen::arbitrary<std::int32_t>()});
    }
    return events;
}

RC_GTEST_PROP(EvemuWriter, WritesWhatTheReaderReads, ()) {
    const evdev::DeviceDescription device = someDevice();
    const std::vector<evdev::InputEvent> events = someEvents();
    const Recording read = readEvemu(write(device, events));
    RC_ASSERT(read.complaint.empty());
    RC_ASSERT(read.devices.size() == 1U);
    const evdev::DeviceDescription &other = read.devices[0].description;
    RC_ASSERT(other.name == device.name);
    RC_ASSERT(std::tie(other.bus, other.vendor, other.product, other.version) ==
              std::tie(device.bus, device.vendor, device.product, device.version));
    RC_ASSERT(other.properties == device.properties);
    RC_ASSERT(other.keys == device.keys);
    RC_ASSERT(other.otherCodes == device.otherCodes);
    RC_ASSERT(other.axes == device.axes);
    RC_ASSERT(read.devices[0].events == events);
}

TEST(EvemuWriter, WritesTheLinesOfTheFormat) {
    EXPECT_EQ(write(aBar(), {{1'000'002, 3, 0x39, -1}, {20'000'000, 0, 0, 0}}),
              "# EVEMU 1.3\n" + kEvemuDevice +
                  "E: 1.000002 0003 0039 -001\n"
                  "E: 20.000000 0000 0000 0000\n");
}

TEST(EvemuWriter, LetsNoNameForgeALine) {
    evdev::DeviceDescription device;
    device.name = "Pad\nE: 0.000001 0001 0001 0001";
    const Recording read = readEvemu(write(device, {}));
    EXPECT_EQ(read.devices.at(0).description.name, "Pad?E: 0.000001 0001 0001 0001");
    EXPECT_THAT(read.devices.at(0).events, testing::IsEmpty());
}

} // namespace
} // namespace barquell::recording
