#include "Data.h"

#include <sys/stat.h>
#include <unistd.h>

namespace barquell::recording {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class RecordingFile : public testing::Test {
public:
    RecordingFile() {
        std::string pattern = testing::TempDir() + "recordingXXXXXX";
        _directory = ::mkdtemp(pattern.data());
    }
    ~RecordingFile() override { std::filesystem::remove_all(_directory); }
    RecordingFile(const RecordingFile &) = delete;
    RecordingFile &operator=(const RecordingFile &) = delete;

    [[nodiscard]] std::filesystem::path write(const std::string &text) const {
        std::filesystem::path file = _directory / "recording";
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

    static void expectRefused(const std::filesystem::path &file, const std::string &reason) {
        const Recording recording = readRecording(file);
        EXPECT_THAT(recording.devices, IsEmpty());
        EXPECT_THAT(recording.complaint, testing::StartsWith(reason));
    }

    std::filesystem::path _directory;
};

TEST_F(RecordingFile, IsReadAsWhatItContains) {
    const Recording evemu = readRecording(write(kEvemuHead + "E: 0.000001 0001 0001 0001\n"));
    EXPECT_EQ(evemu.complaint, "");
    ASSERT_THAT(evemu.devices, SizeIs(1));
    EXPECT_THAT(evemu.devices[0].events, SizeIs(1));
    const Recording yaml = readRecording(write(kYamlHead + kYamlEvents));
    EXPECT_EQ(yaml.complaint, "");
    ASSERT_THAT(yaml.devices, SizeIs(1));
    EXPECT_THAT(yaml.devices[0].events, SizeIs(2));
}

TEST_F(RecordingFile, IsKnownWithoutTheRecordersFirstLine) {
    EXPECT_THAT(readRecording(write("\n# mine\nN: Pad\nI: 0003 0001 0002 0003\n")).devices, SizeIs(1));
    EXPECT_THAT(readRecording(write("---\r\n# mine\r\ndevices:\r\n- evdev: {name: pad}\r\n")).devices,
                SizeIs(1));
}

TEST_F(RecordingFile, IsRefusedWhereItIsNeither) {
    for (const std::string text :
         {"hello\n", "# a comment\n", "\n", "{\"json\": 1}", "PNG", "versions: 1\n"}) {
        expectRefused(write(text), "neither an evemu nor a libinput recording");
    }
    expectRefused(write(std::string(100'000, '\0')), "neither an evemu nor a libinput recording");
}

TEST_F(RecordingFile, IsRefusedWhereItIsEmpty) {
    expectRefused(write(""), "empty");
}

TEST_F(RecordingFile, IsRefusedWhereItCannotBeOpened) {
    expectRefused(_directory / "missing", "cannot be opened: No such file or directory");
}

TEST_F(RecordingFile, IsRefusedWhereItIsNoFile) {
    expectRefused(_directory, "not a regular file");
    expectRefused("/dev/zero", "not a regular file");
    const std::filesystem::path pipe = _directory / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    expectRefused(pipe, "not a regular file"); // and nobody waits for its writer
}

} // namespace
} // namespace barquell::recording
