#include "Data.h"

#include <algorithm>
#include <random>

namespace barquell::recording {
namespace {

constexpr std::size_t kEveryByteAtEnd = 2048;

/// Whether a text ends between two lines, or within a comment that stands alone in its line.
bool endsBetweenLines(std::string_view text) {
    const std::string_view last = text.substr(text.rfind('\n') + 1);
    const std::size_t first = last.find_first_not_of(' ');
    return first == std::string_view::npos || last[first] == '#';
}

void expectPrefix(const Recording &part, const Recording &whole) {
    ASSERT_LE(part.devices.size(), whole.devices.size());
    for (std::size_t i = 0; i < part.devices.size(); ++i) {
        const auto &some = part.devices[i].events;
        const auto &all = whole.devices[i].events;
        ASSERT_LE(some.size(), all.size());
        ASSERT_TRUE(std::equal(some.begin(), some.end(), all.begin()));
    }
}

struct Subject {
    std::string file;
    Recording (*read)(std::string_view);
    std::string lastNeeded; ///< begins the last line without which no recording is whole
    std::string lastOfHead; ///< begins the last line of the (last) head
    std::size_t step;
};

std::string nameOf(const testing::TestParamInfo<Subject> &info) {
    return testName(info.param.file);
}

class CutRecording : public testing::TestWithParam<Subject> {
protected:
    CutRecording()
        : _text(readText(BARQUELL_TEST_DATA "/" + GetParam().file)), _whole(GetParam().read(_text)),
          _lastNeeded(_text.rfind(GetParam().lastNeeded)), _lastOfHead(_text.rfind(GetParam().lastOfHead)) {}

    void SetUp() override {
        ASSERT_EQ(_whole.complaint, "");
        ASSERT_NE(_lastNeeded, std::string::npos);
        ASSERT_NE(_lastOfHead, std::string::npos);
        ASSERT_GT(_text.size(), kEveryByteAtEnd);
    }

    void expectGoodReading(std::size_t size) const {
        SCOPED_TRACE(size);
        const std::string_view cut(_text.data(), size);
        const Recording recording = GetParam().read(cut);
        ASSERT_NO_FATAL_FAILURE(expectPrefix(recording, _whole));
        if (!endsBetweenLines(cut) || size <= _lastNeeded + 1) {
            ASSERT_NE(recording.complaint, "");
        } else if (size > _lastOfHead + 1) {
            ASSERT_EQ(recording.complaint, "");
        }
    }

    std::string _text;
    Recording _whole;
    std::size_t _lastNeeded;
    std::size_t _lastOfHead;
};

TEST_P(CutRecording, IsReadUpToTheCutAtEveryByteOfTheHeadAndManyMore) {
    const std::size_t headEnd = _text.find(GetParam().lastOfHead);
    for (std::size_t size = 0; size < _text.size(); size += size < headEnd ? 1 : GetParam().step) {
        ASSERT_NO_FATAL_FAILURE(expectGoodReading(size));
    }
}

TEST_P(CutRecording, IsReadUpToTheCutAtEveryByteOfTheEnd) {
    for (std::size_t size = _text.size() - kEveryByteAtEnd; size < _text.size(); ++size) {
        ASSERT_NO_FATAL_FAILURE(expectGoodReading(size));
    }
}

INSTANTIATE_TEST_SUITE_P(Files, CutRecording,
                         testing::Values(Subject{"palm-bar.evemu", readEvemu, "\nI: ", "\nA: ", 61},
                                         Subject{"t2-keys.evemu", readEvemu, "\nI: ", "\nB: ", 1},
                                         Subject{"keyboard-mode.yml", readLibinputRecord,
                                                 "\n  events:", "\n  events:", 61}),
                         nameOf);

/// Cut YAML whose last line is whole and that lacks nothing that was announced is a recording.
TEST(CutRecordingOfOneDevice, IsWholeBetweenTwoLinesOfItsEvents) {
    const std::string text = readText(BARQUELL_TEST_DATA "/keyboard-only.yml");
    const std::size_t events = text.find("  events:\n") + 10;
    for (std::size_t end = events; end != std::string::npos + 1; end = text.find('\n', end) + 1) {
        ASSERT_EQ(readLibinputRecord(text.substr(0, end)).complaint, "") << end;
    }
    for (std::size_t end = 0; end < events - 1; ++end) {
        ASSERT_NE(readLibinputRecord(text.substr(0, end)).complaint, "") << end;
    }
}

class ScrambledRecording : public testing::TestWithParam<Subject> {};

/// Bytes changed at random: whatever is read of it, the promises of the interface hold.
TEST_P(ScrambledRecording, KeepsThePromisesOfTheInterface) {
    const std::string text = readText(BARQUELL_TEST_DATA "/" + GetParam().file);
    std::mt19937 random(20240501); // NOLINT: the same bytes each time
    std::size_t complaints = 0;
    for (int round = 0; round < 200; ++round) {
        std::string scrambled = text;
        for (int i = 0; i < 3; ++i) {
            scrambled[random() % scrambled.size()] = static_cast<char>(random());
        }
        const Recording recording = GetParam().read(scrambled);
        complaints += recording.complaint.empty() ? 0 : 1;
        ASSERT_EQ(recording.complaint.find('\n'), std::string::npos);
        for (const RecordedDevice &device : recording.devices) {
            ASSERT_TRUE(std::is_sorted(device.events.begin(), device.events.end(),
                                       [](const auto &a, const auto &b) { return a.time < b.time; }));
        }
    }
    EXPECT_GT(complaints, 20U);
}

INSTANTIATE_TEST_SUITE_P(Files, ScrambledRecording,
                         testing::Values(Subject{"t2-keys.evemu", readEvemu, "", "", 1},
                                         Subject{"keyboard-only.yml", readLibinputRecord, "", "", 1}),
                         nameOf);

} // namespace
} // namespace barquell::recording
