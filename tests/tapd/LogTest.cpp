#include "platform/linux/tapd/service/LineWriter.h"
#include "platform/linux/tapd/service/SystemLog.h"

#include <gmock/gmock.h>

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace barquell::test {

using namespace tapd;
using testing::EndsWith;
using testing::StartsWith;

namespace {

constexpr int kManyLines = 100000; // more than any of the descriptors holds

struct Pipe {
    Pipe() {
        std::array<int, 2> made{};
        EXPECT_EQ(::pipe2(made.data(), O_CLOEXEC), 0);
        out = FileDescriptor(made[0]);
        in = FileDescriptor(made[1]);
    }

    FileDescriptor out;
    FileDescriptor in; ///< would wait
};

/// How many lines there was room for.
int fill(const LineWriter &writer) {
    int lines = 0;
    while (lines < kManyLines && writer.write("a line\n")) {
        ++lines;
    }
    return lines;
}

std::string readFrom(int descriptor) {
    std::array<char, 8192> bytes{};
    const ssize_t count = ::read(descriptor, bytes.data(), bytes.size());
    return {bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

/// What the system log would be: a socket that somebody may read.
class SystemSocket {
public:
    SystemSocket() : _socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
        std::string name = (std::filesystem::temp_directory_path() / "tapd-log-XXXXXX").string();
        _folder = ::mkdtemp(name.data());
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path().copy(address.sun_path, sizeof address.sun_path - 1);
        EXPECT_EQ(::bind(_socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    }
    ~SystemSocket() { std::filesystem::remove_all(_folder); }
    SystemSocket(const SystemSocket &) = delete;
    SystemSocket &operator=(const SystemSocket &) = delete;

    std::string path() const { return (_folder / "log").string(); }
    int descriptor() const { return _socket.get(); }

private:
    FileDescriptor _socket;
    std::filesystem::path _folder;
};

} // namespace

TEST(LineWriter, AFullPipeCostsTheLineAndNoTime) {
    const Pipe pipe;
    const LineWriter writer(pipe.in.get());
    const int lines = fill(writer);
    EXPECT_GT(lines, 0);
    EXPECT_LT(lines, kManyLines);
    EXPECT_FALSE(writer.write("lost\n"));
    std::string read;
    while (!writer.write("kept\n")) {
        read += readFrom(pipe.out.get());
    }
    while (!read.ends_with("kept\n")) {
        read += readFrom(pipe.out.get());
    }
    EXPECT_EQ(read.find("lost"), std::string::npos);
}

TEST(LineWriter, TheOthersOfThePipeStillWait) {
    const Pipe pipe;
    const LineWriter writer(pipe.in.get());
    EXPECT_TRUE(writer.write("a line\n"));
    EXPECT_EQ(::fcntl(pipe.in.get(), F_GETFL) & O_NONBLOCK, 0);
}

TEST(LineWriter, AFullSocketCostsTheLineAndNoTime) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    const FileDescriptor near(ends[0]);
    const FileDescriptor far(ends[1]);
    const LineWriter writer(near.get());
    const int lines = fill(writer);
    EXPECT_GT(lines, 0);
    EXPECT_LT(lines, kManyLines);
    EXPECT_THAT(readFrom(far.get()), StartsWith("a line\n"));
}

TEST(LineWriter, WhatWasNotOpenIsNeverWrittenTo) {
    int closed = -1;
    {
        const Pipe pipe;
        closed = pipe.in.get();
    }
    const LineWriter writer(closed);
    const Pipe later; // takes the number
    EXPECT_FALSE(writer.write("a line\n"));
}

TEST(SystemLog, BothHearALineThatStaysOne) {
    const Pipe pipe;
    const SystemSocket system;
    SystemLog log(pipe.in.get(), system.path());
    log.line("a\nbar");
    EXPECT_EQ(readFrom(pipe.out.get()), "barquell-tapd: a?bar\n");
    const std::string packet = readFrom(system.descriptor());
    EXPECT_THAT(packet, StartsWith("<29>barquell-tapd["));
    EXPECT_THAT(packet, EndsWith("]: a?bar"));
}

TEST(SystemLog, ErrorOutputThatLeadsThereIsLeftOut) {
    const Pipe pipe;
    const SystemSocket system;
    struct stat stream {};
    ASSERT_EQ(::fstat(pipe.in.get(), &stream), 0);
    const std::string name = std::to_string(stream.st_dev) + ':' + std::to_string(stream.st_ino);
    for (const bool isTheStream : {true, false}) {
        ::setenv("JOURNAL_STREAM", (isTheStream ? name : name + '0').c_str(), 1);
        SystemLog log(pipe.in.get(), system.path());
        ::unsetenv("JOURNAL_STREAM");
        log.line("a line");
        EXPECT_THAT(readFrom(system.descriptor()), EndsWith("a line"));
        pollfd written{pipe.out.get(), POLLIN, 0};
        EXPECT_EQ(::poll(&written, 1, 0), isTheStream ? 0 : 1);
    }
}

TEST(SystemLog, ItNeverWaitsForThemToRead) {
    const Pipe pipe;
    fill(LineWriter(pipe.in.get()));
    const SystemSocket system;
    // More of them than one log lets pass, and than the kernel keeps for a socket that is not read.
    for (int i = 0; i < 20; ++i) {
        SystemLog log(pipe.in.get(), system.path());
        for (int line = 0; line < LineLimit::kBurst; ++line) {
            log.line("a line");
        }
    }
    EXPECT_THAT(readFrom(system.descriptor()), EndsWith("a line"));
}

TEST(SystemLog, WithoutASystemLogItStillWrites) {
    const Pipe pipe;
    SystemLog log(pipe.in.get(), "/nonexistent/log");
    log.line("a line");
    EXPECT_EQ(readFrom(pipe.out.get()), "barquell-tapd: a line\n");
}

} // namespace barquell::test
