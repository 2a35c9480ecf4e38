#include "platform/linux/tapd/service/DeadMansTimer.h"

#include <gmock/gmock.h>

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <sys/time.h>
#include <sys/wait.h>

namespace barquell::test {

using namespace tapd;
using namespace std::chrono_literals;

namespace {

constexpr const char *kNoSystemLog = "/nonexistent/log";

/// What is left of the time, and zero where it does not run.
std::chrono::microseconds timeLeft() {
    itimerval setting{};
    ::getitimer(ITIMER_REAL, &setting);
    return std::chrono::seconds(setting.it_value.tv_sec) +
           std::chrono::microseconds(setting.it_value.tv_usec);
}

struct End {
    int status = 0;
    std::string said;
};

/// Of a child process that starts the timer and then waits for nothing.
End endOfOneThatGetsStuck(bool blocked) {
    std::array<int, 2> ends{};
    EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    const FileDescriptor out(ends[0]);
    FileDescriptor in(ends[1]);
    const pid_t child = ::fork();
    if (child == 0) {
        sigset_t alarm;
        ::sigemptyset(&alarm);
        ::sigaddset(&alarm, SIGALRM);
        ::sigprocmask(blocked ? SIG_BLOCK : SIG_UNBLOCK, &alarm, nullptr);
        const SystemLog log(in.get(), kNoSystemLog);
        const DeadMansTimer timer(20ms, log, "stuck");
        timer.start();
        ::poll(nullptr, 0, 60'000); // only a failure waits so long
        ::_exit(3);
    }
    in = FileDescriptor();
    End end;
    std::array<char, 256> bytes{};
    for (ssize_t size = 0; (size = ::read(out.get(), bytes.data(), bytes.size())) > 0;) {
        end.said.append(bytes.data(), static_cast<std::size_t>(size));
    }
    ::waitpid(child, &end.status, 0);
    return end;
}

} // namespace

TEST(DeadMansTimerTest, WhoGetsStuckEndsWithOneLine) {
    for (const bool blocked : {false, true}) {
        const End end = endOfOneThatGetsStuck(blocked);
        EXPECT_TRUE(WIFEXITED(end.status) && WEXITSTATUS(end.status) == 1) << end.status;
        EXPECT_EQ(end.said, "barquell-tapd: stuck\n");
    }
}

TEST(DeadMansTimerTest, ItRunsFromEachStartToTheNextStop) {
    const SystemLog log(-1, kNoSystemLog);
    struct sigaction before {};
    ::sigaction(SIGALRM, nullptr, &before);
    {
        const DeadMansTimer timer(1h, log, "stuck");
        EXPECT_EQ(timeLeft(), 0s);
        for (int turn = 0; turn < 2; ++turn) {
            timer.start();
            EXPECT_GT(timeLeft(), 59min);
            EXPECT_LE(timeLeft(), 1h + 10ms); // the kernel rounds up
            timer.stop();
            EXPECT_EQ(timeLeft(), 0s);
        }
        timer.start();
    }
    EXPECT_EQ(timeLeft(), 0s) << "it outlived its owner";
    struct sigaction after {};
    ::sigaction(SIGALRM, nullptr, &after);
    EXPECT_EQ(after.sa_handler, before.sa_handler);
}

} // namespace barquell::test
