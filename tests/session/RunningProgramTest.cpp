#include "LifeProcess.h"
#include "PrivateBus.h"

#include "platform/linux/session/BusNotifications.h"
#include "platform/linux/session/RunningProgram.h"

namespace barquell::test {

namespace {

using Outcome = RunningProgram::Outcome;

class RunningProgramTest : public testing::Test {
protected:
    RunningProgramTest() { qputenv("XDG_RUNTIME_DIR", _runtime.path().toUtf8()); }

    PrivateBus bus;
    RunningProgram program;

private:
    QTemporaryDir _runtime;
};

} // namespace

TEST_F(RunningProgramTest, EveryCommandReachesTheRunningCopy) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    EXPECT_EQ(program.processId(), life.processId());
    EXPECT_EQ(program.show(), Outcome::Done);
    QVariantMap status;
    EXPECT_EQ(program.status(status), Outcome::Done);
    EXPECT_EQ(status.value(QStringLiteral("enabled")), QVariant(true));
    EXPECT_EQ(status.value(QStringLiteral("pauseFlags")), QVariant(QStringList{QStringLiteral("shield")}));
    EXPECT_TRUE(life.says(QStringLiteral("reopen, no windows")));
}

TEST_F(RunningProgramTest, QuitIsTheNotificationThatEveryCopyHears) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    SessionBus session;
    BusNotifications notifications(session);
    int heard = 0;
    const auto observation = notifications.observe(QStringLiteral("com.vexolith.barquell.quit"),
                                                   [&heard](const QString &) { ++heard; });
    session.call(MessageBus::question(QStringLiteral("GetId")));
    EXPECT_EQ(program.quit(), Outcome::Done);
    EXPECT_TRUE(waitFor([&heard] { return heard == 1; }));
}

TEST_F(RunningProgramTest, WhereNoCopyRunsNoneIsStarted) {
    QVariantMap status;
    EXPECT_EQ(program.show(), Outcome::NotRunning);
    EXPECT_EQ(program.quit(), Outcome::NotRunning);
    EXPECT_EQ(program.status(status), Outcome::NotRunning);
    EXPECT_FALSE(program.processId());
}

TEST_F(RunningProgramTest, AnotherHolderOfTheNameRefuses) {
    OtherProgram other(bus);
    ASSERT_TRUE(other.connection().registerService(QStringLiteral("com.vexolith.barquell")));
    EXPECT_EQ(program.show(), Outcome::Refused);
}

TEST_F(RunningProgramTest, ACopyThatHangsIsSilent) {
    LifeProcess life;
    ASSERT_TRUE(life.isLaunched());
    life.signal(SIGSTOP);
    EXPECT_EQ(program.show(), Outcome::Silent);
}

TEST(RunningProgramWithoutBusTest, WithoutABusNobodyIsAsked) {
    const PrivateBus bus(PrivateBus::Beginning::Absent);
    RunningProgram program;
    QVariantMap status;
    EXPECT_FALSE(program.hasBus());
    EXPECT_FALSE(program.processId());
    EXPECT_EQ(program.show(), Outcome::NoBus);
    EXPECT_EQ(program.quit(), Outcome::NoBus);
    EXPECT_EQ(program.status(status), Outcome::NoBus);
}

} // namespace barquell::test
