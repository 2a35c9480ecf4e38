#include "Fakes.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;

namespace {

class IdleTest : public TapdTest {};

} // namespace

TEST_F(IdleTest, WhoStaysWithoutClientsEndsWhereItIsStartedForThem) {
    server.endWhenIdle(now);
    EXPECT_EQ(server.deadline(), now + 30s);
    EXPECT_FALSE(server.isDone(now + 30s - 1us));
    EXPECT_TRUE(server.isDone(now + 30s));
}

TEST_F(IdleTest, WhoHasAClientStays) {
    server.endWhenIdle(now);
    hello(client);
    later(1h);
    EXPECT_FALSE(server.isDone(now));
    EXPECT_EQ(server.deadline(), std::nullopt);
    server.disconnected(client, now);
    EXPECT_FALSE(server.isDone(now + 30s - 1us));
    EXPECT_TRUE(server.isDone(now + 30s));
    hello(other);
    EXPECT_FALSE(server.isDone(now + 30s));
}

TEST_F(IdleTest, WhoAsksKeepsTheServer) {
    server.endWhenIdle(now);
    grants.withdraw(client.uid);
    begin(client, ClientMessageType::RequestGrant);
    later(4min);
    EXPECT_FALSE(server.isDone(now));
}

TEST_F(IdleTest, WhoWasStartedByHandStays) {
    hello(client);
    server.disconnected(client, now);
    EXPECT_FALSE(server.isDone(now + 1h));
    EXPECT_EQ(server.deadline(), std::nullopt);
}

} // namespace barquell::test
