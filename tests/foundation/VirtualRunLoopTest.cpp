#include "foundation/VirtualRunLoop.h"

#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace barquell {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class VirtualRunLoopTest : public testing::Test {
protected:
    /// A task that notes its number.
    RunLoop::Task note(int number) {
        return [this, number] { notes.push_back(number); };
    }

    VirtualRunLoop loop;
    std::vector<int> notes;
};

TEST_F(VirtualRunLoopTest, TheWallClockGoesOnWithTheLoopAlsoAfterItWasSet) {
    const QDateTime begin = loop.wallClock();
    loop.advanceBy(milliseconds(1500));
    EXPECT_EQ(begin.msecsTo(loop.wallClock()), 1500);
    const QDateTime other(QDate(2030, 6, 1), QTime(12, 0), Qt::UTC);
    loop.setWallClock(other);
    EXPECT_EQ(loop.wallClock(), other);
    loop.advanceBy(milliseconds(20));
    EXPECT_EQ(loop.wallClock(), other.addMSecs(20));
}

TEST_F(VirtualRunLoopTest, RunsWhatIsDueInTheOrderOfTimesThenOfScheduling) {
    loop.performAfter(milliseconds(20), note(4));
    loop.performAfter(milliseconds(10), note(2));
    loop.performAsync(note(0));
    loop.performAfter(milliseconds(10), note(3));
    loop.performAsync(note(1));
    EXPECT_THAT(notes, IsEmpty());
    loop.advanceBy(milliseconds(20));
    EXPECT_THAT(notes, ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(VirtualRunLoopTest, RunsNothingBeforeItsTime) {
    loop.performAfter(milliseconds(10), note(1));
    loop.advanceTo(microseconds(9999));
    EXPECT_THAT(notes, IsEmpty());
    loop.advanceTo(microseconds(10000));
    EXPECT_THAT(notes, ElementsAre(1));
    loop.advanceBy(milliseconds(100));
    EXPECT_THAT(notes, ElementsAre(1)); // once
}

TEST_F(VirtualRunLoopTest, ATaskSeesItsOwnTimeAndSchedulesFromThere) {
    std::vector<microseconds> times;
    loop.performAfter(milliseconds(10), [&] {
        times.push_back(loop.now());
        loop.performAfter(milliseconds(5), [&] { times.push_back(loop.now()); });
        loop.performAsync([&] { times.push_back(loop.now()); });
    });
    loop.advanceTo(milliseconds(40));
    EXPECT_THAT(times, ElementsAre(milliseconds(10), milliseconds(10), milliseconds(15)));
    EXPECT_EQ(loop.now(), milliseconds(40));
}

TEST_F(VirtualRunLoopTest, ATimeAlreadyPastRunsWhatIsPendingAndTurnsNoClockBack) {
    loop.advanceTo(milliseconds(10));
    loop.performAsync(note(1));
    loop.performAfter(milliseconds(1), note(2));
    loop.advanceTo(milliseconds(5));
    EXPECT_THAT(notes, ElementsAre(1));
    EXPECT_EQ(loop.now(), milliseconds(10));
}

TEST_F(VirtualRunLoopTest, RepeatsEachIntervalUntilTheTimerIsDestroyed) {
    std::vector<microseconds> times;
    auto timer = loop.scheduleRepeating(milliseconds(10), [&] { times.push_back(loop.now()); });
    loop.advanceTo(milliseconds(9));
    EXPECT_THAT(times, IsEmpty());
    loop.advanceTo(milliseconds(35));
    EXPECT_THAT(times, ElementsAre(milliseconds(10), milliseconds(20), milliseconds(30)));
    timer.reset();
    loop.advanceTo(milliseconds(100));
    EXPECT_EQ(times.size(), 3U);
}

TEST_F(VirtualRunLoopTest, ATimerMayBeDestroyedInItsOwnTask) {
    std::unique_ptr<RunLoop::Timer> timer;
    const auto runs = std::make_shared<int>(0);
    timer = loop.scheduleRepeating(milliseconds(10), [&timer, runs] {
        timer.reset();
        ++*runs;
    });
    loop.advanceTo(milliseconds(50));
    EXPECT_EQ(*runs, 1);
    EXPECT_EQ(runs.use_count(), 1); // the task is gone
}

TEST_F(VirtualRunLoopTest, AOneShotTimerRunsOnceAfterItsDelayAndMayOutliveThat) {
    std::vector<microseconds> times;
    auto timer = loop.scheduleOnce(milliseconds(10), [&] { times.push_back(loop.now()); });
    loop.advanceTo(milliseconds(100));
    EXPECT_THAT(times, ElementsAre(milliseconds(10)));
    timer.reset();
    loop.advanceTo(milliseconds(200));
    EXPECT_EQ(times.size(), 1U);
}

TEST_F(VirtualRunLoopTest, AOneShotTimerThatIsDestroyedNeverRuns) {
    auto timer = loop.scheduleOnce(milliseconds(10), note(1));
    loop.advanceTo(microseconds(9999));
    timer.reset();
    loop.advanceTo(milliseconds(100));
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(VirtualRunLoopTest, AOneShotTimerMayBeDestroyedOrReplacedInItsOwnTask) {
    std::unique_ptr<RunLoop::Timer> timer;
    const auto runs = std::make_shared<int>(0);
    timer = loop.scheduleOnce(milliseconds(10), [&, runs] {
        timer = loop.scheduleOnce(milliseconds(10), note(1));
        ++*runs;
    });
    loop.advanceTo(milliseconds(19));
    EXPECT_EQ(*runs, 1);
    EXPECT_EQ(runs.use_count(), 1); // the task is gone
    EXPECT_THAT(notes, IsEmpty());
    loop.advanceTo(milliseconds(20));
    EXPECT_THAT(notes, ElementsAre(1));
}

TEST_F(VirtualRunLoopTest, ATimerMayBeDestroyedByAnotherTaskThatIsDueBeforeIt) {
    auto timer = loop.scheduleRepeating(milliseconds(10), note(1));
    loop.performAfter(milliseconds(9), [&] { timer.reset(); });
    loop.advanceTo(milliseconds(50));
    EXPECT_THAT(notes, IsEmpty());
}

TEST_F(VirtualRunLoopTest, AnExceptionIsOneLineAndTheLoopGoesOn) {
    const test::LogCapture logged;
    loop.performAsync([] { throw std::runtime_error("no way"); });
    const auto timer = loop.scheduleRepeating(milliseconds(10), [] { throw 5; });
    loop.performAsync(note(1));
    loop.advanceTo(milliseconds(20));
    EXPECT_THAT(notes, ElementsAre(1));
    const QString unknown = QStringLiteral("Uncaught unknown exception in the run loop");
    EXPECT_EQ(logged.lines,
              QStringList({QStringLiteral("Uncaught exception in the run loop: no way"), unknown, unknown}));
}

TEST(RunLoopMain, IsTheOneThatWasSetOrElseQts) {
    VirtualRunLoop loop;
    RunLoop &usual = RunLoop::main();
    RunLoop::setMain(&loop);
    EXPECT_EQ(&RunLoop::main(), &loop);
    RunLoop::setMain(nullptr);
    EXPECT_EQ(&RunLoop::main(), &usual);
}

} // namespace
} // namespace barquell
