#include "Fakes.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// A client whose user has no grant, and one whose has.
class GrantsTest : public TapdTest {
protected:
    GrantsTest() { asking.uid = 1001; }

    void request(FakeLink &link) { begin(link, ClientMessageType::RequestGrant); }
    void withdraw(FakeLink &link) { begin(link, ClientMessageType::WithdrawGrant); }
    bool isGranted(const FakeLink &link) { return grants.read(link.uid).state == grant::State::Held; }
    bool isAsked(const FakeLink &link) { return authority.asked.contains(&link); }

    FakeLink asking;
};

} // namespace

TEST_F(GrantsTest, WithoutAGrantNobodyIsWelcome) {
    hello(asking);
    expectRefused(asking, Refusal::NotGranted);
    EXPECT_TRUE(asking.closed);
    EXPECT_THAT(log.lines, ElementsAre("a client: refused, its user has no grant"));
}

TEST_F(GrantsTest, RootNeedsAGrantAsWell) {
    asking.uid = 0;
    hello(asking);
    expectRefused(asking, Refusal::NotGranted);
}

TEST_F(GrantsTest, WhatIsWrongWithAGrantIsSaidOnce) {
    grants.readings[asking.uid] = {grant::State::Invalid, "its grant means nothing"};
    for (int i = 0; i < 10; ++i) {
        FakeLink link;
        link.uid = asking.uid;
        hello(link);
        expectRefused(link, Refusal::NotGranted);
    }
    EXPECT_THAT(log.lines, ElementsAre("a client: its grant means nothing"));
}

TEST_F(GrantsTest, AYesGrants) {
    request(asking);
    EXPECT_TRUE(isAsked(asking));
    EXPECT_THAT(asking.heard, IsEmpty());
    server.answered(asking, tapd::Answer::Yes, now);
    EXPECT_THAT(asking.takeTypes(), ElementsAre(ServerMessageType::Granted));
    EXPECT_TRUE(asking.closed);
    EXPECT_TRUE(isGranted(asking));
    EXPECT_FALSE(isAsked(asking));
    FakeLink again;
    again.uid = asking.uid;
    hello(again);
    EXPECT_THAT(again.takeTypes(), ElementsAre(ServerMessageType::Welcome));
}

TEST_F(GrantsTest, ANoDoesNot) {
    request(asking);
    server.answered(asking, tapd::Answer::No, now);
    expectRefused(asking, Refusal::Denied);
    EXPECT_TRUE(asking.closed);
    EXPECT_FALSE(isGranted(asking));
}

TEST_F(GrantsTest, WithNobodyToAskThereIsNoAnswer) {
    authority.isThere = false;
    request(asking);
    expectRefused(asking, Refusal::NoAnswer);
    EXPECT_TRUE(asking.closed);
    authority.isThere = true;
    FakeLink later;
    later.uid = asking.uid;
    request(later);
    EXPECT_FALSE(later.closed) << "the authority may come later";
    server.answered(later, tapd::Answer::None, now);
    expectRefused(later, Refusal::NoAnswer);
}

TEST_F(GrantsTest, WhoHasAGrantIsNotAskedAgain) {
    request(client);
    EXPECT_THAT(client.takeTypes(), ElementsAre(ServerMessageType::Granted));
    EXPECT_TRUE(client.closed);
    EXPECT_THAT(authority.asked, IsEmpty());
}

TEST_F(GrantsTest, AGrantThatCannotBeWrittenIsNone) {
    request(asking);
    grants.problem = "no space";
    server.answered(asking, tapd::Answer::Yes, now);
    expectRefused(asking, Refusal::Failed);
    EXPECT_THAT(log.lines, Contains("cannot give a grant: no space"));
}

TEST_F(GrantsTest, AUserWithoutANameIsNotAskedAbout) {
    grants.nameless.insert(asking.uid);
    request(asking);
    expectRefused(asking, Refusal::Failed);
    EXPECT_TRUE(asking.closed);
    EXPECT_THAT(authority.asked, IsEmpty());
    EXPECT_THAT(log.lines, ElementsAre("a client: refused a question, its user has no name"));
}

TEST_F(GrantsTest, AWithdrawalOfNothingLooksAtNobodyElse) {
    hello(client);
    grants.looked.clear();
    withdraw(asking);
    EXPECT_THAT(asking.takeTypes(), ElementsAre(ServerMessageType::Withdrawn));
    EXPECT_THAT(grants.looked, ElementsAre(asking.uid));
}

TEST_F(GrantsTest, AnAuthorityThatNeverAnswersIsWaitedForSoLongAndDisturbsNobody) {
    startTapping();
    request(asking);
    now += 5min - 1us;
    server.advance(now);
    EXPECT_FALSE(asking.closed);
    EXPECT_EQ(server.deadline(), now + 1us);
    tapAt(1);
    EXPECT_THAT(client.take(), SizeIs(2));
    judge(client, 1, true);
    judge(client, 2, true);
    later(1us);
    expectRefused(asking, Refusal::NoAnswer);
    EXPECT_TRUE(asking.closed);
    EXPECT_FALSE(isAsked(asking));
    EXPECT_EQ(server.deadline(), std::nullopt);
    server.answered(asking, tapd::Answer::Yes, now);
    EXPECT_FALSE(isGranted(asking)) << "an answer too late";
    EXPECT_FALSE(client.closed);
}

TEST_F(GrantsTest, AClientThatGoesTakesItsQuestionBack) {
    request(asking);
    server.disconnected(asking, now);
    EXPECT_FALSE(isAsked(asking));
    server.answered(asking, tapd::Answer::Yes, now);
    EXPECT_FALSE(isGranted(asking));
}

TEST_F(GrantsTest, AnAnswerThatNobodyWaitsForIsIgnored) {
    connect(asking);
    server.answered(asking, tapd::Answer::Yes, now);
    EXPECT_FALSE(isGranted(asking));
    EXPECT_FALSE(asking.closed);
}

TEST_F(GrantsTest, AUserIsAskedOnceAtATime) {
    request(asking);
    FakeLink second;
    second.uid = asking.uid;
    request(second);
    expectRefused(second, Refusal::Busy);
    EXPECT_TRUE(second.closed);
    EXPECT_FALSE(asking.closed);
    server.answered(asking, tapd::Answer::No, now);
    FakeLink third;
    third.uid = asking.uid;
    request(third);
    EXPECT_TRUE(isAsked(third));
}

TEST_F(GrantsTest, SoManyUsersAreAskedAtATime) {
    std::vector<std::unique_ptr<FakeLink>> links;
    for (std::size_t i = 0; i < tapd::GrantDesk::kMaximumQuestions; ++i) {
        links.push_back(std::make_unique<FakeLink>());
        links.back()->uid = static_cast<std::uint32_t>(2000 + i);
        request(*links.back());
        EXPECT_TRUE(isAsked(*links.back()));
    }
    request(asking);
    expectRefused(asking, Refusal::Busy);
    server.disconnected(*links[1], now);
    FakeLink later;
    later.uid = asking.uid;
    request(later);
    EXPECT_TRUE(isAsked(later));
    for (const auto &link : links) {
        server.disconnected(*link, now);
    }
    server.disconnected(later, now);
    EXPECT_THAT(authority.asked, IsEmpty());
}

TEST_F(GrantsTest, WhoAsksMayNotFilterMeanwhile) {
    request(asking);
    create(asking);
    expectRefused(asking, Refusal::Malformed);
    EXPECT_TRUE(asking.closed);
    EXPECT_FALSE(isAsked(asking));
}

TEST_F(GrantsTest, AWishIsSaidFirstOrNotAtAll) {
    hello(client);
    ClientMessage wish;
    wish.type = ClientMessageType::RequestGrant;
    wish.version = kVersion;
    say(client, wish);
    expectRefused(client, Refusal::Malformed);
    request(asking);
    say(asking, wish);
    expectRefused(asking, Refusal::Malformed);
    EXPECT_FALSE(isAsked(asking));
}

TEST_F(GrantsTest, AWishOfAnotherVersionIsRefused) {
    for (const auto type : {ClientMessageType::RequestGrant, ClientMessageType::WithdrawGrant}) {
        FakeLink link;
        ClientMessage wish;
        wish.type = type;
        wish.version = kVersion + 1;
        connect(link);
        say(link, wish);
        expectRefused(link, Refusal::Version);
    }
    EXPECT_TRUE(isGranted(client));
}

TEST_F(GrantsTest, WhoWaitsForAnAnswerIsNotShownOutAsSilent) {
    request(asking);
    later(1min);
    EXPECT_FALSE(asking.closed);
}

TEST_F(GrantsTest, WithdrawingEndsTheGrantAndTheUsersClients) {
    startTapping();
    FakeLink neighbour;
    neighbour.uid = 1002;
    grants.give(neighbour.uid);
    hello(neighbour);
    bar.down(0, 5);
    report(bar);
    withdraw(other);
    EXPECT_THAT(other.takeTypes(), ElementsAre(ServerMessageType::Withdrawn));
    EXPECT_TRUE(other.closed);
    EXPECT_FALSE(isGranted(client));
    expectRefused(client, Refusal::NotGranted);
    EXPECT_TRUE(client.closed);
    EXPECT_FALSE(neighbour.closed);
    EXPECT_THAT(bar.seen, ElementsAre(ElementsAre(5))) << "the frame that was out passes";
    bar.up(0);
    report(bar);
    EXPECT_FALSE(evdev::anyContact(bar.cloneHolds()));
    later(1s);
    EXPECT_FALSE(bar.grabbed);
}

TEST_F(GrantsTest, WithdrawingWhatIsNotThereIsFine) {
    withdraw(asking);
    EXPECT_THAT(asking.takeTypes(), ElementsAre(ServerMessageType::Withdrawn));
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(GrantsTest, AGrantThatCannotBeRemovedStays) {
    hello(client);
    grants.problem = "read-only";
    withdraw(other);
    expectRefused(other, Refusal::Failed);
    EXPECT_FALSE(client.closed);
    EXPECT_THAT(log.lines, Contains("cannot withdraw a grant: read-only"));
}

TEST_F(GrantsTest, AnInvalidGrantMayBeWithdrawn) {
    grants.readings[asking.uid] = {grant::State::Invalid, "its grant means nothing"};
    withdraw(asking);
    EXPECT_THAT(grants.readings, testing::Not(Contains(testing::Key(asking.uid))));
}

TEST_F(GrantsTest, AGrantThatEndsOnTheDiskEndsItsUsersClientsAlone) {
    startTapping();
    FakeLink neighbour;
    neighbour.uid = 1002;
    grants.give(neighbour.uid);
    hello(neighbour);
    grants.readings[client.uid] = {grant::State::Invalid, "its grant names somebody else"};
    server.grantsChanged(now);
    expectRefused(client, Refusal::NotGranted);
    EXPECT_TRUE(client.closed);
    EXPECT_FALSE(neighbour.closed);
    server.grantsChanged(now);
    EXPECT_FALSE(neighbour.closed);
}

TEST_F(GrantsTest, AGrantThatComesOnTheDiskAnswersTheQuestion) {
    request(asking);
    grants.give(asking.uid);
    server.grantsChanged(now);
    EXPECT_THAT(asking.takeTypes(), ElementsAre(ServerMessageType::Granted));
    EXPECT_FALSE(isAsked(asking));
}

TEST_F(GrantsTest, AClientThatHasNotSpokenIsLeftAloneByChanges) {
    connect(asking);
    server.grantsChanged(now);
    EXPECT_FALSE(asking.closed);
}

} // namespace barquell::test
