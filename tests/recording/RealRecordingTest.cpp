#include "Data.h"

#include "recording/EvemuWriter.h"

#include <sstream>

namespace barquell::recording {
namespace {

std::vector<std::filesystem::path> realRecordings() {
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(BARQUELL_TEST_DATA)) {
        if (entry.path().extension() == ".yml" || entry.path().extension() == ".evemu") {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::size_t count(const std::string &text, const std::string &part) {
    std::size_t found = 0;
    for (std::size_t place = text.find(part); place != std::string::npos;
         place = text.find(part, place + 1)) {
        ++found;
    }
    return found;
}

class RealRecording : public testing::TestWithParam<std::filesystem::path> {};

/// The counts come from the text by other means than the readers'.
TEST_P(RealRecording, IsReadWhole) {
    const Recording recording = readRecording(GetParam());
    const std::string text = readText(GetParam());
    const bool isEvemu = GetParam().extension() == ".evemu";
    EXPECT_EQ(recording.complaint, "");
    EXPECT_EQ(recording.devices.size(), isEvemu ? 1 : count(text, "\n- node: "));
    std::size_t events = 0;
    for (const RecordedDevice &device : recording.devices) {
        EXPECT_NE(device.description.name, "");
        EXPECT_NE(device.description.bus, 0);
        events += device.events.size();
    }
    EXPECT_EQ(events, count(text, isEvemu ? "\nE: " : "\n    - ["));
    EXPECT_GT(events, 0U);
}

TEST_P(RealRecording, SurvivesBeingWrittenAndReadAgain) {
    for (const RecordedDevice &device : readRecording(GetParam()).devices) {
        std::ostringstream out;
        writeEvemuHeader(out, device.description);
        for (const evdev::InputEvent &event : device.events) {
            writeEvemuEvent(out, event);
        }
        const Recording again = readEvemu(out.str());
        EXPECT_EQ(again.complaint, "");
        ASSERT_EQ(again.devices.size(), 1U);
        expectSameDescription(again.devices[0].description, device.description);
        EXPECT_EQ(again.devices[0].events, device.events);
    }
}

std::string nameOf(const testing::TestParamInfo<std::filesystem::path> &info) {
    return testName(info.param.filename());
}

INSTANTIATE_TEST_SUITE_P(Files, RealRecording, testing::ValuesIn(realRecordings()), nameOf);

} // namespace
} // namespace barquell::recording
