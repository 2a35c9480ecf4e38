#include "Data.h"

namespace barquell::recording {
namespace {

using evdev::InputEvent;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Recording readWithEvents(const std::string &events) {
    return readEvemu(kEvemuHead + events);
}

TEST(EvemuReader, DescribesTheDevice) {
    const Recording recording = readEvemu(kEvemuHead);
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(1));
    expectSameDescription(recording.devices[0].description, aBar());
}

TEST(EvemuReader, ReadsEventsInOrder) {
    const Recording recording = readWithEvents("E: 0.000001 0003 002f 0001\t# EV_ABS / ABS_MT_SLOT 1\n"
                                               "E: 12.345678 0003 0039 -001\n"
                                               "\n# between\n"
                                               "E: 12.345678 0000 0000 0000\t# ---- SYN_REPORT (0) ----\n");
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(1));
    EXPECT_THAT(recording.devices[0].events,
                ElementsAre(InputEvent{1, 3, 0x2f, 1}, InputEvent{12'345'678, 3, 0x39, -1},
                            InputEvent{12'345'678, 0, 0, 0}));
}

TEST(EvemuReader, ReadsTheFirstVersionOfTheFormat) {
    const Recording recording = readEvemu("N: Old pad\n"
                                          "I: 0018 0001 0002 0003\n"
                                          "P: 00 00 00 00 00 00 00 00\n"
                                          "B: 00 0b 00 00 00 00 00 00 00\n"
                                          "B: 03 01 00 00 00 00 00 00 00\n"
                                          "A: 00 1 2 3 4\n"
                                          "E: 5.000000 0003 0000 7\n");
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(1));
    EXPECT_EQ(recording.devices[0].description.axes.at(0), (evdev::AxisInfo{1, 2, 3, 4, 0}));
    EXPECT_THAT(recording.devices[0].events, ElementsAre(InputEvent{5'000'000, 3, 0, 7}));
}

TEST(EvemuReader, ReadsLinesThatEndAsOnOtherSystems) {
    const Recording recording =
        readEvemu("N: Pad\r\nI: 0003 0001 0002 0003\r\nE: 0.000000 0001 0002 0003\r\n");
    EXPECT_EQ(recording.complaint, "");
    ASSERT_THAT(recording.devices, SizeIs(1));
    EXPECT_EQ(recording.devices[0].description.name, "Pad");
    EXPECT_THAT(recording.devices[0].events, SizeIs(1));
}

TEST(EvemuReader, KeepsUnknownTypesAndCodes) {
    const Recording recording =
        readWithEvents("E: 0.000000 ffff ffff 2147483647\nE: 0.0 77 3ff -2147483648\n");
    EXPECT_EQ(recording.complaint, "");
    EXPECT_THAT(recording.devices.at(0).events, ElementsAre(InputEvent{0, 0xffff, 0xffff, 2147483647},
                                                            InputEvent{0, 0x77, 0x3ff, -2147483648}));
}

TEST(EvemuReader, IgnoresCodesOfTheHeadThatNoDeviceCanHave) {
    std::string head = "N: Pad\nI: 0003 0001 0002 0003\n";
    for (int i = 0; i < 200; ++i) {
        head += "P: ff ff ff ff ff ff ff ff\nB: 01 ff ff ff ff ff ff ff ff\n";
    }
    const Recording recording = readEvemu(head + "A: 40 0 1 0 0 0\n");
    EXPECT_EQ(recording.complaint, "");
    EXPECT_TRUE(recording.devices.at(0).description.keys.all());
    EXPECT_TRUE(recording.devices.at(0).description.properties.all());
    EXPECT_THAT(recording.devices.at(0).description.axes, IsEmpty());
}

TEST(EvemuReader, ComplainsOfABackwardTimeOnceAndGoesOn) {
    const Recording recording = readWithEvents("E: 2.000000 0001 0001 0001\n"
                                               "E: 1.999999 0001 0002 0001\n"
                                               "E: 1.000000 0001 0003 0001\n"
                                               "E: 3.000000 0001 0004 0001\n");
    expectBackwardTimesHeld(recording, 16);
}

struct Refused {
    std::string line;
    std::string complaint;
};

class EvemuReaderStops : public testing::TestWithParam<Refused> {};

TEST_P(EvemuReaderStops, AndKeepsWhatCameBefore) {
    const Recording recording =
        readWithEvents("E: 0.000001 0001 0001 0001\n" + GetParam().line + "\nE: 9.000000 0001 0002 0001\n");
    EXPECT_EQ(recording.complaint, GetParam().complaint + " at line 16");
    EXPECT_THAT(recording.devices.at(0).events, ElementsAre(InputEvent{1, 1, 1, 1}));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, EvemuReaderStops,
    testing::Values(Refused{"E: -1.000000 0001 0001 0001", "negative time"},
                    Refused{"E: -0.000005 0001 0001 0001", "negative time"},
                    Refused{"E: 2147483649.000000 0001 0001 0001", "time out of range"},
                    Refused{"E: 99999999999999999999.000000 0001 0001 0001", "time out of range"},
                    Refused{"E: 1.1000000 0001 0001 0001", "time out of range"},
                    Refused{"E: 1.000000 10000 0001 0001", "type or code out of range"},
                    Refused{"E: 1.000000 0001 10000 0001", "type or code out of range"},
                    Refused{"E: 1.000000 0001 -1 0001", "type or code out of range"},
                    Refused{"E: 1.000000 0001 0001 2147483648", "value out of range"},
                    Refused{"E: 1.000000 0001 0001 -2147483649", "value out of range"},
                    Refused{"E: 1.000000 0001 0001", "damaged"}, Refused{"E: 1 0001 0001 0001", "damaged"},
                    Refused{"E: 1.000000 0001 0001 1x", "damaged"}, Refused{"E: ", "damaged"},
                    Refused{"N: Another bar", "a second device"}, Refused{"Hello", "damaged"},
                    Refused{"X: 1", "damaged"}, Refused{"I: 0003 0001 0002", "damaged"},
                    Refused{"I: 10000 0001 0002 0003", "damaged"}, Refused{"P: 00 00", "damaged"},
                    Refused{"P: 00 00 00 00 00 00 00 100", "damaged"},
                    Refused{"B: 20 00 00 00 00 00 00 00 00", "damaged"},
                    Refused{"B: 01 00 00 00 00 00 00 00 00 00", "damaged"}, Refused{"A: 00 0 1 0", "damaged"},
                    Refused{"A: 00 0 2147483648 0 0 0", "damaged"}));

TEST(EvemuReader, AcceptsTheLastSecondThereIs) {
    const Recording recording = readWithEvents("E: 2147483648.999999 0001 0001 0001\n");
    EXPECT_EQ(recording.complaint, "");
    EXPECT_THAT(recording.devices.at(0).events, ElementsAre(InputEvent{2'147'483'648'999'999, 1, 1, 1}));
}

TEST(EvemuReader, DoesNotTrustALineThatWasCut) {
    const Recording recording = readWithEvents("E: 0.000001 0001 0001 0001\nE: 0.000002 0001 0001 123");
    EXPECT_EQ(recording.complaint, "cut short at line 16");
    EXPECT_THAT(recording.devices.at(0).events, ElementsAre(InputEvent{1, 1, 1, 1}));
}

TEST(EvemuReader, TakesARecordingThatEndsWithAnOpenCommentForWhole) {
    const Recording recording = readWithEvents("E: 0.000001 0001 0001 0001\n# Closing after 5s inactivity");
    EXPECT_EQ(recording.complaint, "");
    EXPECT_THAT(recording.devices.at(0).events, SizeIs(1));
}

TEST(EvemuReader, ComplainsOfAHeadThatIsNotWhole) {
    EXPECT_EQ(readEvemu("N: Pad\n").complaint, "cut short: the device's identity is missing");
    EXPECT_EQ(readEvemu(kEvemuHead.substr(0, kEvemuHead.find("A: 2f"))).complaint,
              "cut short: an axis' range is missing");
}

TEST(EvemuReader, FindsNoDeviceWhereNoneIsNamed) {
    for (const std::string text : {"", "# EVEMU 1.3\n", "# EVEMU 1.3\nE: 0.000000 0001 0001 0001\nN: Late\n",
                                   "I: 0003 0001 0002 0003\n"}) {
        const Recording recording = readEvemu(text);
        EXPECT_THAT(recording.complaint, testing::StartsWith("no device found")) << text;
        EXPECT_THAT(recording.devices, IsEmpty()) << text;
    }
}

TEST(EvemuReader, RefusesALineThatNobodyWouldWrite) {
    const Recording recording =
        readWithEvents("E: 0.000001 0001 0001 0001\n#" + std::string(1U << 20U, 'x') + "\n");
    EXPECT_EQ(recording.complaint, "damaged at line 16");
    EXPECT_THAT(recording.devices.at(0).events, SizeIs(1));
}

} // namespace
} // namespace barquell::recording
