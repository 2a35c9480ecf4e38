#pragma once

#include "recording/Recording.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>

namespace barquell::recording {

/// A device as an evemu recording describes it.
inline const std::string kEvemuDevice = "N: A bar\n"
                                        "I: 0003 05ac 8302 0101\n"
                                        "P: 02 00 00 00 00 00 00 00\n"
                                        "B: 00 0b 00 00 00 00 00 00 00\n"
                                        "B: 01 00 00 00 00 00 00 00 00\n"
                                        "B: 01 01 00 00 00 00 00 00 80\n"
                                        "B: 03 01 00 00 00 00 80 00 00\n"
                                        "B: 04 20 00 00 00 00 00 00 00\n"
                                        "A: 00 -5 32767 1 2 40\n"
                                        "A: 2f 0 10 0 0 0\n";

inline const std::string kEvemuHead = "# EVEMU 1.3\n"
                                      "# Kernel: 6.1\n" +
                                      kEvemuDevice +
                                      "L: 00 1\n"
                                      "S: 05 0\n"; // 14 lines

/// The head of a libinput recording up to the items of its only device's events.
inline const std::string kYamlHead = "# libinput record\n"
                                     "version: 1\n"
                                     "ndevices: 1\n"
                                     "devices:\n"
                                     "- node: /dev/input/event9\n"
                                     "  evdev:\n"
                                     "    # Name: A bar\n"
                                     "    name: \"A bar\"\n"
                                     "    id: [3, 1452, 33538, 257]\n"
                                     "    codes:\n"
                                     "      0: [0, 1, 2] # EV_SYN\n"
                                     "      1: [64, 127] # EV_KEY\n"
                                     "      3: [0, 47] # EV_ABS\n"
                                     "      4: [5] # EV_MSC\n"
                                     "    absinfo:\n"
                                     "      0: [-5, 32767, 1, 2, 40]\n"
                                     "      47: [0, 10, 0, 0, 0]\n"
                                     "    properties: [1]\n"
                                     "  events:\n"; // 19 lines

inline const std::string kYamlEvents = "  - evdev:\n"
                                       "    - [  0,      0,   3,  47,       1] # EV_ABS / ABS_MT_SLOT\n"
                                       "    - [  1,      5,   0,   0,      -2] # SYN_REPORT\n";

/// What both heads describe.
inline evdev::DeviceDescription aBar() {
    evdev::DeviceDescription device;
    device.name = "A bar";
    device.bus = 3;
    device.vendor = 0x05ac;
    device.product = 0x8302;
    device.version = 0x101;
    device.properties.set(1);
    device.keys.set(64);
    device.keys.set(127);
    device.otherCodes[4].set(5);
    device.axes[0] = {-5, 32767, 1, 2, 40};
    device.axes[0x2f] = {0, 10, 0, 0, 0};
    return device;
}

/// A test's name may not have all that a file's has.
inline std::string testName(std::string file) {
    std::replace_if(
        file.begin(), file.end(), [](char c) { return c == '-' || c == '.'; }, '_');
    return file;
}

inline std::string readText(const std::filesystem::path &file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void expectSameDescription(const evdev::DeviceDescription &left,
                                  const evdev::DeviceDescription &right) {
    EXPECT_EQ(left.name, right.name);
    EXPECT_EQ(left.bus, right.bus);
    EXPECT_EQ(left.vendor, right.vendor);
    EXPECT_EQ(left.product, right.product);
    EXPECT_EQ(left.version, right.version);
    EXPECT_EQ(left.properties, right.properties);
    EXPECT_EQ(left.keys, right.keys);
    EXPECT_EQ(left.otherCodes, right.otherCodes);
    EXPECT_EQ(left.axes, right.axes);
}

/// Of four key presses two were noted before the first; they are held at its time.
inline void expectBackwardTimesHeld(const Recording &recording, std::size_t firstLine) {
    EXPECT_EQ(recording.complaint, "time runs backwards at line " + std::to_string(firstLine));
    EXPECT_THAT(recording.devices.at(0).events, testing::ElementsAre(evdev::InputEvent{2'000'000, 1, 1, 1},
                                                                     evdev::InputEvent{2'000'000, 1, 2, 1},
                                                                     evdev::InputEvent{2'000'000, 1, 3, 1},
                                                                     evdev::InputEvent{3'000'000, 1, 4, 1}));
}

} // namespace barquell::recording
