#include "FakeServer.h"

#include "platform/linux/client/GrantClient.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

#include <thread>

namespace barquell::test {

using namespace std::chrono_literals;
using protocol::ClientMessageType;
using protocol::Refusal;
using protocol::ServerMessage;
using protocol::ServerMessageType;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class GrantClientTest : public testing::Test {
protected:
    GrantClientTest() { place(); }

    void expectWish(ClientMessageType type) {
        ASSERT_TRUE(server.accept());
        const auto wish = server.next();
        EXPECT_EQ(wish.type, type);
        EXPECT_EQ(wish.version, protocol::kVersion);
    }

    /// So many wishes have an outcome, each with its line.
    bool haveEnded(qsizetype wishes) {
        return waitFor([&] {
            place().loop.runPending();
            return log.lines.size() == wishes;
        });
    }
    bool hasEnded() { return haveEnded(1); }

    void expectGivenUpAfter(std::chrono::microseconds limit) {
        place().loop.advanceBy(limit - 1ms);
        EXPECT_THAT(outcomes, IsEmpty());
        place().loop.advanceBy(1ms);
        EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Silent));
        EXPECT_EQ(log.lines.size(), 1);
        EXPECT_TRUE(server.clientHasGone());
    }

    GrantClient::Handler noting() {
        return [this](GrantOutcome outcome) { outcomes.push_back(outcome); };
    }
    void request() { client.request(noting()); }
    void withdraw() { client.withdraw(noting()); }

    LogCapture log;
    FakeServer server;
    GrantClient client{server.path()};
    std::vector<GrantOutcome> outcomes;
};

ServerMessage refused(Refusal reason) {
    return {.type = ServerMessageType::Refused, .version = protocol::kVersion, .reason = reason};
}

} // namespace

TEST_F(GrantClientTest, ARequestIsToldAndItsOutcomeLogged) {
    client.request();
    expectWish(ClientMessageType::RequestGrant);
    server.send({.type = ServerMessageType::Granted});
    EXPECT_TRUE(hasEnded());
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("This user may filter the Touch Bar")));
    EXPECT_TRUE(server.clientHasGone());
}

TEST_F(GrantClientTest, OneRequestAtATime) {
    client.request();
    expectWish(ClientMessageType::RequestGrant);
    client.request();
    EXPECT_FALSE(server.isCalled());
}

TEST_F(GrantClientTest, WhoAsksWhileARequestIsUnderWayHearsItsOutcome) {
    client.request(); // as the program does by itself
    expectWish(ClientMessageType::RequestGrant);
    request();
    client.request(); // nobody takes the handler's place
    server.send(refused(Refusal::Denied));
    EXPECT_TRUE(hasEnded());
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Denied));
    EXPECT_EQ(log.lines.size(), 1);
}

TEST_F(GrantClientTest, ARequestThatWasRefusedMayBeMadeAgain) {
    client.request();
    expectWish(ClientMessageType::RequestGrant);
    server.send(refused(Refusal::Denied));
    EXPECT_TRUE(hasEnded());
    client.request();
    expectWish(ClientMessageType::RequestGrant);
}

TEST_F(GrantClientTest, AWithdrawalTakesAPendingRequestBack) {
    client.request();
    expectWish(ClientMessageType::RequestGrant);
    withdraw();
    EXPECT_TRUE(server.clientHasGone());
    expectWish(ClientMessageType::WithdrawGrant);
    server.send({.type = ServerMessageType::Withdrawn});
    server.hangUp();
    EXPECT_TRUE(hasEnded());
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Withdrawn));
    EXPECT_EQ(log.lines.size(), 1);
}

TEST_F(GrantClientTest, AServerThatGoesAwayIsSaid) {
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
    server.hangUp();
    EXPECT_TRUE(hasEnded());
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Silent));
}

TEST_F(GrantClientTest, WithoutAServerItIsSaid) {
    server.die();
    withdraw();
    EXPECT_THAT(outcomes, IsEmpty()) << "not before it returns";
    EXPECT_TRUE(hasEnded());
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Unreachable));
}

TEST_F(GrantClientTest, TheHandlerMayAskForMore) {
    client.withdraw([this](GrantOutcome) { client.request(); });
    expectWish(ClientMessageType::WithdrawGrant);
    server.send({.type = ServerMessageType::Withdrawn});
    EXPECT_TRUE(waitFor([this] {
        place().loop.runPending();
        return server.isCalled();
    }));
    EXPECT_EQ(server.next().type, ClientMessageType::RequestGrant);
    server.send({.type = ServerMessageType::Granted});
    EXPECT_TRUE(haveEnded(2));
}

TEST_F(GrantClientTest, AnOutcomeThatComesAfterTheNextWishBeganIsDropped) {
    server.die();
    client.request(); // it cannot be made, which is told later
    server.listen();
    withdraw();
    place().loop.runPending();
    EXPECT_THAT(outcomes, IsEmpty());
    EXPECT_THAT(log.lines, IsEmpty());
    expectWish(ClientMessageType::WithdrawGrant);
    server.send({.type = ServerMessageType::Withdrawn});
    EXPECT_TRUE(hasEnded());
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Withdrawn));
}

TEST_F(GrantClientTest, AWithdrawalThatIsNotAnsweredIsGivenUpAfterFiveSeconds) {
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
    expectGivenUpAfter(5s);
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
}

TEST_F(GrantClientTest, ARequestThatIsNotAnsweredIsGivenUpOnceThePersonHasHadTheTimeForIt) {
    request();
    expectWish(ClientMessageType::RequestGrant);
    expectGivenUpAfter(std::chrono::microseconds(protocol::kQuestionLimit) + 5s);
    request();
    expectWish(ClientMessageType::RequestGrant);
}

TEST_F(GrantClientTest, TheLimitOfAWishThatWasAnsweredEndsNoLaterOne) {
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
    place().loop.advanceBy(4s);
    server.send({.type = ServerMessageType::Withdrawn});
    EXPECT_TRUE(hasEnded());
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
    place().loop.advanceBy(4s);
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Withdrawn));
    server.send(refused(Refusal::Failed));
    EXPECT_TRUE(haveEnded(2));
    place().loop.advanceBy(1h); // with no wish under way
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Withdrawn, GrantOutcome::Failed));
    EXPECT_EQ(log.lines.size(), 2);
}

TEST_F(GrantClientTest, AnAnswerThatComesAfterTheLimitIsNotBelieved) {
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
    server.send({.type = ServerMessageType::Withdrawn}); // nobody has read it yet
    place().loop.advanceBy(5s);
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Silent));
    withdraw();
    expectWish(ClientMessageType::WithdrawGrant);
    server.send(refused(Refusal::Failed));
    EXPECT_TRUE(haveEnded(2));
    EXPECT_THAT(outcomes, ElementsAre(GrantOutcome::Silent, GrantOutcome::Failed));
}

TEST_F(GrantClientTest, AClientThatGoesTellsNobody) {
    {
        GrantClient short_lived(server.path());
        short_lived.withdraw(noting());
        expectWish(ClientMessageType::WithdrawGrant);
        server.hangUp();
    }
    runFor(50ms);
    place().loop.advanceBy(5s);
    EXPECT_THAT(outcomes, IsEmpty());
}

TEST(GrantOutcomeTest, EachAnswerHasAMeaning) {
    EXPECT_EQ(grantOutcome({.type = ServerMessageType::Granted}), GrantOutcome::Granted);
    EXPECT_EQ(grantOutcome({.type = ServerMessageType::Withdrawn}), GrantOutcome::Withdrawn);
    EXPECT_EQ(grantOutcome({.type = ServerMessageType::Welcome}), GrantOutcome::Silent);
    const std::vector<std::pair<Refusal, GrantOutcome>> refusals{
        {Refusal::Version, GrantOutcome::OtherVersion},
        {Refusal::Malformed, GrantOutcome::OtherVersion},
        {Refusal::Busy, GrantOutcome::Busy},
        {Refusal::Denied, GrantOutcome::Denied},
        {Refusal::NoAnswer, GrantOutcome::NoAnswer},
        {Refusal::Failed, GrantOutcome::Failed},
        {Refusal::NotGranted, GrantOutcome::Silent}};
    for (const auto &[reason, outcome] : refusals) {
        EXPECT_EQ(grantOutcome(refused(reason)), outcome);
    }
}

TEST(WithdrawGrantTest, WaitsForTheAnswer) {
    FakeServer server;
    std::thread answering([&] {
        EXPECT_TRUE(server.accept());
        server.send({.type = ServerMessageType::Withdrawn});
    });
    EXPECT_EQ(withdrawGrant(server.path(), 20s), GrantOutcome::Withdrawn);
    answering.join();
    EXPECT_EQ(withdrawGrant(server.path(), 10ms), GrantOutcome::Silent);
    EXPECT_EQ(withdrawGrant(QStringLiteral("/nowhere/tap.sock"), 10ms), GrantOutcome::Unreachable);
}

} // namespace barquell::test
