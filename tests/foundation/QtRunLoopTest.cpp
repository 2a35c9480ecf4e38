#include "foundation/QtRunLoop.h"

#include "support/LogCapture.h"
#include "support/Wait.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

namespace barquell {
namespace {

using std::chrono::milliseconds;

TEST(QtRunLoopTest, RunsWhatIsLaterInTheOrderScheduledAndNotBefore) {
    QtRunLoop loop;
    QStringList order;
    loop.performAsync([&] {
        order.append(QStringLiteral("first"));
        loop.performAsync([&] { order.append(QStringLiteral("third")); });
    });
    loop.performAsync([&] { order.append(QStringLiteral("second")); });
    EXPECT_TRUE(order.isEmpty());
    ASSERT_TRUE(test::waitFor([&] { return order.size() == 3; }));
    EXPECT_EQ(order,
              QStringList({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")}));
}

TEST(QtRunLoopTest, RunsOnceAfterTheDelay) {
    QtRunLoop loop;
    const QDeadlineTimer early(30);
    bool tooEarly = false;
    int runs = 0;
    loop.performAfter(milliseconds(40), [&] {
        tooEarly = !early.hasExpired();
        ++runs;
    });
    ASSERT_TRUE(test::waitFor([&] { return runs > 0; }));
    EXPECT_FALSE(tooEarly);
    test::runFor(milliseconds(100));
    EXPECT_EQ(runs, 1);
}

TEST(QtRunLoopTest, AOneShotTimerRunsOnceAfterItsDelay) {
    QtRunLoop loop;
    const QDeadlineTimer early(30);
    bool tooEarly = false;
    int runs = 0;
    const auto timer = loop.scheduleOnce(milliseconds(40), [&] {
        tooEarly = !early.hasExpired();
        ++runs;
    });
    ASSERT_TRUE(test::waitFor([&] { return runs > 0; }));
    EXPECT_FALSE(tooEarly);
    test::runFor(milliseconds(100));
    EXPECT_EQ(runs, 1);
}

TEST(QtRunLoopTest, AOneShotTimerThatIsDestroyedNeverRuns) {
    QtRunLoop loop;
    bool ran = false;
    auto timer = loop.scheduleOnce(milliseconds(10), [&] { ran = true; });
    timer.reset();
    test::runFor(milliseconds(50));
    EXPECT_FALSE(ran);
}

TEST(QtRunLoopTest, AOneShotTimerMayBeDestroyedInItsOwnTask) {
    QtRunLoop loop;
    std::unique_ptr<RunLoop::Timer> timer;
    const auto alive = std::make_shared<int>(0);
    const std::weak_ptr<int> watched = alive;
    timer = loop.scheduleOnce(milliseconds(1), [&timer, runs = alive] {
        timer.reset();
        ++*runs;
    });
    ASSERT_TRUE(test::waitFor([&] { return *alive > 0; }));
    EXPECT_EQ(watched.use_count(), 1); // the task is gone
}

TEST(QtRunLoopTest, RepeatsUntilTheTimerIsDestroyed) {
    QtRunLoop loop;
    int runs = 0;
    std::unique_ptr<RunLoop::Timer> timer = loop.scheduleRepeating(milliseconds(1), [&] { ++runs; });
    ASSERT_TRUE(test::waitFor([&] { return runs >= 3; }));
    timer.reset();
    const int before = runs;
    test::runFor(milliseconds(50));
    EXPECT_EQ(runs, before);
}

TEST(QtRunLoopTest, ARepeatingTimerMayBeDestroyedInItsOwnTask) {
    QtRunLoop loop;
    std::unique_ptr<RunLoop::Timer> timer;
    const auto alive = std::make_shared<int>(0); // owned by the task: it must outlast the destruction
    const std::weak_ptr<int> watched = alive;
    timer = loop.scheduleRepeating(milliseconds(1), [&timer, runs = alive] {
        timer.reset();
        ++*runs;
    });
    ASSERT_TRUE(test::waitFor([&] { return *alive > 0; }));
    test::runFor(milliseconds(50));
    EXPECT_EQ(*alive, 1);
    EXPECT_EQ(watched.use_count(), 1); // the task is gone
}

TEST(QtRunLoopTest, AnExceptionIsOneLineAndTheLoopGoesOn) {
    const test::LogCapture logged;
    QtRunLoop loop;
    bool went = false;
    int repetitions = 0;
    loop.performAsync([] { throw std::runtime_error("no\nway"); });
    loop.performAsync([] { throw 5; });
    const auto timer = loop.scheduleRepeating(milliseconds(1), [&] {
        ++repetitions;
        throw std::runtime_error("again");
    });
    loop.performAfter(milliseconds(1), [&] { went = true; });
    ASSERT_TRUE(test::waitFor([&] { return went && repetitions >= 2; }));
    ASSERT_GE(logged.lines.size(), 4);
    EXPECT_EQ(logged.lines.at(0), QStringLiteral("Uncaught exception in the run loop: no?way"));
    EXPECT_EQ(logged.lines.at(1), QStringLiteral("Uncaught unknown exception in the run loop"));
    EXPECT_EQ(logged.lines.at(2), QStringLiteral("Uncaught exception in the run loop: again"));
}

TEST(QtRunLoopTest, WhatIsScheduledGoesAwayWithTheLoop) {
    bool ran = false;
    {
        QtRunLoop loop;
        loop.performAsync([&] { ran = true; });
        loop.performAfter(milliseconds(1), [&] { ran = true; });
    }
    test::runFor(milliseconds(50));
    EXPECT_FALSE(ran);
}

} // namespace
} // namespace barquell
