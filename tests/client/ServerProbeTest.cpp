#include "FakeServer.h"

#include "platform/linux/client/ServerProbe.h"

#include <gtest/gtest.h>

#include <thread>

namespace barquell::test {

using namespace std::chrono_literals;

namespace {

ProbeFailure failureOf(const QString &path, std::chrono::milliseconds limit = 10ms) {
    const auto result = probeServer(path, limit);
    const auto *failure = std::get_if<ProbeFailure>(&result);
    EXPECT_NE(failure, nullptr);
    return failure ? *failure : ProbeFailure{};
}

} // namespace

TEST(ServerProbeTest, AServerThatIsNotThereIsAbsent) {
    EXPECT_EQ(failureOf(QStringLiteral("/nowhere/tap.sock")), ProbeFailure::Absent);
}

TEST(ServerProbeTest, TheWayToAServerIsLookedAtWithoutAWordToIt) {
    EXPECT_EQ(obstacleTo(QStringLiteral("/nowhere/tap.sock")), ProbeFailure::Absent);
    FakeServer server;
    EXPECT_EQ(obstacleTo(server.path()), std::nullopt);
    EXPECT_FALSE(server.isCalled());
}

TEST(ServerProbeTest, AServerThatDoesNotAnswerIsSilent) {
    FakeServer server;
    EXPECT_EQ(failureOf(server.path()), ProbeFailure::Silent);
    server.die();
    EXPECT_EQ(failureOf(server.path()), ProbeFailure::Silent);
}

TEST(ServerProbeTest, AServerSaysHowManyBarsItKnows) {
    FakeServer server;
    std::thread answering([&] {
        EXPECT_TRUE(server.accept());
        server.send({.type = protocol::ServerMessageType::Welcome,
                     .version = protocol::kVersion,
                     .barsKnown = 2,
                     .barsGrabbed = 1});
    });
    const auto result = probeServer(server.path(), 20s);
    answering.join();
    const auto *welcome = std::get_if<protocol::ServerMessage>(&result);
    ASSERT_NE(welcome, nullptr);
    EXPECT_EQ(welcome->barsKnown, 2);
    EXPECT_EQ(welcome->barsGrabbed, 1);
}

TEST(ServerProbeTest, AServerThatRefusesIsTold) {
    FakeServer server;
    std::thread answering([&] {
        EXPECT_TRUE(server.accept());
        server.send({.type = protocol::ServerMessageType::Refused,
                     .version = 7,
                     .reason = protocol::Refusal::Version});
    });
    EXPECT_EQ(failureOf(server.path(), 20s), ProbeFailure::Refused);
    answering.join();
}

TEST(ServerProbeTest, AUserWithoutAGrantIsToldFromOtherRefusals) {
    FakeServer server;
    std::thread answering([&] {
        EXPECT_TRUE(server.accept());
        server.send({.type = protocol::ServerMessageType::Refused, .reason = protocol::Refusal::NotGranted});
    });
    EXPECT_EQ(failureOf(server.path(), 20s), ProbeFailure::NotGranted);
    answering.join();
}

} // namespace barquell::test
