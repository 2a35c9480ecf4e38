#include "Data.h"

namespace barquell::recording {
namespace {

using evdev::InputEvent;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

Recording readWithEvents(const std::string &items) {
    return readLibinputRecord(kYamlHead + items);
}

std::string device(const std::string &name) {
    return "- evdev: {name: " + name + "}\n  events:\n";
}

TEST(LibinputReader, DescribesTheDevice) {
    const Recording recording = readWithEvents(kYamlEvents);
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(1));
    expectSameDescription(recording.devices[0].description, aBar());
    EXPECT_THAT(recording.devices[0].events,
                ElementsAre(InputEvent{0, 3, 47, 1}, InputEvent{1'000'005, 0, 0, -2}));
}

TEST(LibinputReader, ReadsEveryDeviceWithEventsOfItsOwn) {
    const Recording recording =
        readLibinputRecord("ndevices: 3\ndevices:\n" + device("one") + "  - evdev: [[1, 0, 1, 1, 1]]\n" +
                           device("two") + "  - evdev: [[0, 5, 1, 2, 1]]\n" + device("three"));
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(3));
    EXPECT_EQ(recording.devices[1].description.name, "two");
    EXPECT_THAT(recording.devices[0].events, ElementsAre(InputEvent{1'000'000, 1, 1, 1}));
    EXPECT_THAT(recording.devices[1].events, ElementsAre(InputEvent{5, 1, 2, 1}));
    EXPECT_THAT(recording.devices[2].events, IsEmpty());
}

TEST(LibinputReader, SkipsWhatItDoesNotKnow) {
    const Recording recording = readLibinputRecord(
        "version: 1\nsystem: {devices: [{evdev: {name: no}}], x: [[[{y: [1]}]]]}\n"
        "? [evdev, {events: 1}]\n: {name: no}\n"
        "devices:\n"
        "- a scalar\n"
        "- hid: [5, 1, {evdev: {name: no}}]\n"
        "  evdev: {name: yes, name2: no, codes: {77: [1], 1: [9999]}, absinfo: {64: [0, 1, 2, 3, 4]}}\n"
        "  udev:\n    properties:\n    - ID_INPUT=1\n"
        "  events:\n"
        "  - hid:\n      time: [  0,      5]\n      hidraw0: [1, 2]\n"
        "  - libinput:\n    - {time: 0.5, type: TOUCH_DOWN, evdev: [[0, 0, 1, 1, 1]]}\n"
        "    evdev:\n    - [0, 7, 1, 2, 3]\n");
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(1));
    EXPECT_EQ(recording.devices[0].description.name, "yes");
    EXPECT_THAT(recording.devices[0].description.axes, IsEmpty());
    EXPECT_THAT(recording.devices[0].description.otherCodes, IsEmpty());
    EXPECT_TRUE(recording.devices[0].description.keys.none());
    EXPECT_THAT(recording.devices[0].events, ElementsAre(InputEvent{7, 1, 2, 3}));
}

TEST(LibinputReader, RefusesEndlessNesting) {
    for (const std::string open : {"[", "{a: ", "- "}) {
        std::string text = "devices:\n" + device("one") + "x:";
        text += open == "- " ? "\n  " : " ";
        for (int i = 0; i < 400; ++i) {
            text += open;
        }
        const Recording recording = readLibinputRecord(text);
        EXPECT_THAT(recording.complaint, StartsWith("nested too deeply")) << open;
        EXPECT_THAT(recording.devices, SizeIs(1)) << open;
    }
}

TEST(LibinputReader, ComplainsOfABackwardTimeOnceAndGoesOn) {
    const Recording recording = readWithEvents("  - evdev:\n"
                                               "    - [2, 0, 1, 1, 1]\n"
                                               "    - [1, 999999, 1, 2, 1]\n"
                                               "  - evdev:\n"
                                               "    - [1, 0, 1, 3, 1]\n"
                                               "    - [3, 0, 1, 4, 1]\n");
    expectBackwardTimesHeld(recording, 22);
}

struct Refused {
    std::string item;
    std::string complaint;
};

class LibinputReaderStops : public testing::TestWithParam<Refused> {};

TEST_P(LibinputReaderStops, AndKeepsWhatCameBefore) {
    const Recording recording = readWithEvents("  - evdev:\n    - [0, 1, 1, 1, 1]\n    - " + GetParam().item +
                                               "\n    - [0, 9, 1, 2, 1]\n");
    EXPECT_EQ(recording.complaint, GetParam().complaint + " at line 22");
    EXPECT_THAT(recording.devices.at(0).events, ElementsAre(InputEvent{1, 1, 1, 1}));
}

INSTANTIATE_TEST_SUITE_P(Items, LibinputReaderStops,
                         testing::Values(Refused{"[-1, 0, 1, 1, 1]", "negative time"},
                                         Refused{"[0, -1, 1, 1, 1]", "negative time"},
                                         Refused{"[2147483649, 0, 1, 1, 1]", "time out of range"},
                                         Refused{"[18446744073709551615, 0, 1, 1, 1]", "time out of range"},
                                         Refused{"[0, 1000000, 1, 1, 1]", "time out of range"},
                                         Refused{"[0, 0, 65536, 1, 1]", "type or code out of range"},
                                         Refused{"[0, 0, 1, -1, 1]", "type or code out of range"},
                                         Refused{"[0, 0, 1, 1, 2147483648]", "value out of range"},
                                         Refused{"[0, 0, 1, 1]", "damaged"},
                                         Refused{"[0, 0, 1, 1, 1, 1]", "damaged"},
                                         Refused{"[0, 0, 1, 1, one]", "damaged"},
                                         Refused{"[0, 0, 1, [1], 1]", "damaged"},
                                         Refused{"{0: 1}", "damaged"}, Refused{"nothing", "damaged"}));

TEST(LibinputReader, KeepsUnknownTypesAndCodes) {
    const Recording recording = readWithEvents("  - evdev: [[0, 0, 65535, 65535, -2147483648]]\n");
    EXPECT_EQ(recording.complaint, "");
    EXPECT_THAT(recording.devices.at(0).events, ElementsAre(InputEvent{0, 0xffff, 0xffff, -2147483648}));
}

TEST(LibinputReader, StopsAtADescriptionThatIsDamaged) {
    for (const std::string line :
         {"id: [1, 2, 3]", "id: [1, 2, 3, 65536]", "codes: {key: [1]}", "codes: {1: [-1]}",
          "absinfo: {0: [1, 2, 3, 4]}", "absinfo: {0: [1, 2, 3, 4, 2147483648]}",
          "absinfo: {x: [1, 2, 3, 4, 5]}", "properties: [one]", "properties: [65536]"}) {
        const Recording recording =
            readLibinputRecord("devices:\n- evdev:\n    name: one\n    " + line + "\n  events: []\n");
        EXPECT_THAT(recording.complaint, testing::EndsWith(" at line 4")) << line;
        EXPECT_THAT(recording.devices, SizeIs(1)) << line;
    }
}

TEST(LibinputReader, SaysWhereTheRecordingIsCutShort) {
    const Recording inNumber = readWithEvents(kYamlEvents + "    - [  1,      6,   0,  12");
    EXPECT_EQ(inNumber.complaint, "cut short at line 23");
    EXPECT_THAT(inNumber.devices.at(0).events, SizeIs(2));
    const Recording inComment = readWithEvents(kYamlEvents + "    - [ 1, 6, 0, 0, 12] # EV");
    EXPECT_EQ(inComment.complaint, "cut short at line 23");
    EXPECT_THAT(inComment.devices.at(0).events, SizeIs(3));
}

TEST(LibinputReader, MissesTheDevicesThatWereAnnounced) {
    const Recording recording = readLibinputRecord("ndevices: 2\ndevices:\n" + device("one"));
    EXPECT_THAT(recording.complaint, StartsWith("cut short: devices are missing"));
    EXPECT_THAT(recording.devices, SizeIs(1));
}

TEST(LibinputReader, DropsADeviceWithoutAName) {
    const Recording recording =
        readLibinputRecord("devices:\n" + device("one") + "- evdev: {id: [1, 2, 3, 4]}\n");
    EXPECT_THAT(recording.complaint, StartsWith("cut short: a device without a name"));
    EXPECT_THAT(recording.devices, SizeIs(1));
}

TEST(LibinputReader, TakesARecordingThatEndsWithAnOpenCommentForWhole) {
    EXPECT_EQ(readWithEvents(kYamlEvents + "# Closing after 5s inactivity").complaint, "");
}

TEST(LibinputReader, KeepsWhatCameBeforeAnythingThatIsNoYaml) {
    const Recording recording = readWithEvents(kYamlEvents + "  ]]\n" + std::string(500, '\n') + "more: 1\n");
    EXPECT_THAT(recording.complaint, StartsWith("not YAML ("));
    EXPECT_THAT(recording.complaint, testing::EndsWith("at line 23"));
    EXPECT_THAT(recording.devices.at(0).events, SizeIs(2));
}

TEST(LibinputReader, FindsNoDeviceWhereNoneIs) {
    for (const std::string text : {"", "version: 1\n", "devices:\n", "- 1\n", "text", "devices: {}\n"}) {
        const Recording recording = readLibinputRecord(text);
        EXPECT_NE(recording.complaint, "") << text;
        EXPECT_THAT(recording.devices, IsEmpty()) << text;
    }
    EXPECT_EQ(readLibinputRecord("version: 1\ndevices:\n").complaint, "no device found");
}

TEST(LibinputReader, RefusesAVersionItDoesNotKnow) {
    EXPECT_EQ(readLibinputRecord("version: 2\ndevices:\n" + device("one")).complaint,
              "a version of the format that is not known at line 1");
}

TEST(LibinputReader, StopsAtTheSixtyFifthDevice) {
    std::string text = "devices:\n";
    for (int i = 0; i < 64; ++i) {
        text += device("pad");
    }
    EXPECT_EQ(readLibinputRecord(text).complaint, "");
    const Recording recording = readLibinputRecord(text + device("pad"));
    EXPECT_EQ(recording.complaint, "too many devices at line 130");
    EXPECT_THAT(recording.devices, SizeIs(64));
}

} // namespace
} // namespace barquell::recording
