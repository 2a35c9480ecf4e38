#include "Fakes.h"

#include "evdev/Devices.h"

namespace barquell::test {

using namespace protocol;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class ClientsTest : public TapdTest {
protected:
    void press(std::uint16_t key, int value) {
        server.keyboardAdded(1);
        server.keyboardRead(1, std::vector<evdev::InputEvent>{{0, evdev::kEvKey, key, value}});
    }
};

} // namespace

TEST_F(ClientsTest, AWelcomeTellsHowThingsAre) {
    press(0x1d0, 1); // KEY_FN
    plug(bar);
    hello(client);
    ASSERT_THAT(client.heard, SizeIs(1));
    EXPECT_EQ(client.heard[0].type, ServerMessageType::Welcome);
    EXPECT_EQ(client.heard[0].version, kVersion);
    EXPECT_EQ(client.heard[0].flags, kFlagFn);
    EXPECT_EQ(client.heard[0].barsKnown, 1);
    EXPECT_EQ(client.heard[0].barsGrabbed, 0);
}

TEST_F(ClientsTest, AWelcomeTellsWhoHasTheTap) {
    startTapping();
    hello(other);
    EXPECT_EQ(other.heard.at(0).holder, client.pid);
}

TEST_F(ClientsTest, AWelcomeTellsThatNobodyHasTheTap) {
    startTapping();
    destroy(client);
    hello(other);
    EXPECT_EQ(other.heard.at(0).holder, kNobody);
}

TEST_F(ClientsTest, OfAnotherUsersProcessNobodyHearsMoreThanThatThereIsOne) {
    startTapping();
    other.uid = client.uid + 1;
    grants.give(other.uid);
    hello(other);
    EXPECT_EQ(other.heard.at(0).holder, kAnotherUser);
}

TEST_F(ClientsTest, RootHearsOfEveryUsersProcess) {
    startTapping();
    other.uid = 0;
    grants.give(other.uid);
    hello(other);
    EXPECT_EQ(other.heard.at(0).holder, client.pid);
}

TEST_F(ClientsTest, AnotherVersionIsRefused) {
    connect(client);
    ClientMessage message;
    message.type = ClientMessageType::Hello;
    message.version = kVersion + 1;
    say(client, message);
    expectRefused(client, Refusal::Version);
    EXPECT_EQ(client.heard.back().version, kVersion);
    EXPECT_TRUE(client.closed);
}

TEST_F(ClientsTest, NothingIsHeardBeforeHello) {
    connect(client);
    press(0x1d0, 1);
    EXPECT_THAT(client.heard, IsEmpty());
    create(client);
    expectRefused(client, Refusal::Malformed);
    EXPECT_TRUE(client.closed);
}

TEST_F(ClientsTest, ASecondHelloIsMalformed) {
    hello(client);
    ClientMessage message;
    message.type = ClientMessageType::Hello;
    message.version = kVersion;
    say(client, message);
    expectRefused(client, Refusal::Malformed);
}

TEST_F(ClientsTest, AHalfMessageIsMalformedAndDisturbsNobodyElse) {
    startTapping();
    hello(other);
    server.received(other, std::vector<std::byte>(31), now);
    expectRefused(other, Refusal::Malformed);
    EXPECT_TRUE(other.closed);
    EXPECT_FALSE(client.closed);
    tapAt(1);
    EXPECT_THAT(client.take(), SizeIs(2));
}

TEST_F(ClientsTest, MessagesOfATapNeedOne) {
    hello(client);
    setEnabled(client, true);
    expectRefused(client, Refusal::Malformed);
}

TEST_F(ClientsTest, ASilentStrangerIsShownOut) {
    connect(client);
    hello(other);
    later(4999ms);
    EXPECT_FALSE(client.closed);
    later(1ms);
    EXPECT_TRUE(client.closed);
    EXPECT_FALSE(other.closed);
}

TEST_F(ClientsTest, ASecondTapIsRefusedAndMayBeTriedLater) {
    startTapping();
    hello(other);
    create(other);
    expectRefused(other, Refusal::Busy);
    EXPECT_FALSE(other.closed);
    server.disconnected(client, now);
    create(other);
    EXPECT_EQ(other.heard.back().type, ServerMessageType::TapCreated);
}

TEST_F(ClientsTest, AClientHasOneTap) {
    startTapping();
    create(client);
    expectRefused(client, Refusal::Busy);
    EXPECT_FALSE(client.closed);
}

TEST_F(ClientsTest, OnlyTheOwnerJudges) {
    startTapping();
    hello(other);
    tapAt(1);
    judge(other, 1, true);
    EXPECT_THAT(bar.seen, IsEmpty());
    EXPECT_TRUE(other.closed);
}

TEST_F(ClientsTest, TheTapsLateVerdictsAreIgnoredAfterItsEnd) {
    startTapping();
    tapAt(1);
    destroy(client);
    judge(client, 1, false);
    judge(client, 2, false);
    EXPECT_FALSE(client.closed);
    EXPECT_THAT(bar.seen, SizeIs(2));
}

TEST_F(ClientsTest, ThereIsRoomForSixteen) {
    std::vector<std::unique_ptr<FakeLink>> links;
    for (std::size_t i = 0; i < tapd::TapServer::kMaximumClients; ++i) {
        links.push_back(std::make_unique<FakeLink>());
        links.back()->uid = static_cast<std::uint32_t>(i);
        grants.give(links.back()->uid);
        hello(*links.back());
    }
    connect(other);
    expectRefused(other, Refusal::Busy);
    EXPECT_TRUE(other.closed);
    server.disconnected(*links[3], now);
    hello(client);
    EXPECT_FALSE(client.closed);
}

TEST_F(ClientsTest, OneUserLeavesTheOthersRoom) {
    std::vector<std::unique_ptr<FakeLink>> links;
    for (std::size_t i = 0; i < tapd::TapServer::kMaximumClientsOfAUser; ++i) {
        hello(*links.emplace_back(std::make_unique<FakeLink>()));
    }
    connect(client);
    expectRefused(client, Refusal::Busy);
    EXPECT_TRUE(client.closed);
    other.uid = 1001;
    grants.give(other.uid);
    hello(other);
    EXPECT_FALSE(other.closed);
}

TEST_F(ClientsTest, WhoAsksForATakenTapAgainAndAgainIsToldOfOnceATap) {
    startTapping();
    hello(other);
    const std::size_t before = log.lines.size();
    for (int i = 0; i < 10; ++i) {
        create(other);
    }
    EXPECT_EQ(log.lines.size(), before + 1);
    destroy(client);
    create(client);
    create(other);
    EXPECT_EQ(log.lines.back(), "a client: the tap is taken") << "it is another tap";
}

TEST_F(ClientsTest, WhoComesBackWithAnotherVersionIsToldOfOnce) {
    ClientMessage message;
    message.type = ClientMessageType::Hello;
    message.version = kVersion + 1;
    for (int i = 0; i < 10; ++i) {
        FakeLink link;
        connect(link);
        say(link, message);
        EXPECT_TRUE(link.closed);
    }
    EXPECT_THAT(log.lines, SizeIs(1));
    other.uid = 1001;
    connect(other);
    say(other, message);
    EXPECT_THAT(log.lines, SizeIs(2)) << "somebody else";
}

TEST(ToldOnce, ItsTableIsBounded) {
    tapd::ToldOnce told;
    for (std::uint32_t user = 0; user <= tapd::ToldOnce::kRoom; ++user) {
        EXPECT_TRUE(told.isNews(user, "why"));
    }
    EXPECT_FALSE(told.isNews(tapd::ToldOnce::kRoom, "why"));
    EXPECT_TRUE(told.isNews(0, "why")) << "the oldest made room";
}

TEST_F(ClientsTest, EverybodyHearsOfModifiersOnce) {
    hello(client);
    hello(other);
    client.take();
    other.take();
    press(42, 1); // KEY_LEFTSHIFT
    press(42, 1);
    press(30, 1); // KEY_A
    ASSERT_THAT(client.heard, SizeIs(1));
    EXPECT_EQ(client.heard[0].flags, kFlagShift | kFlagLeftShift);
    EXPECT_THAT(other.takeTypes(), ElementsAre(ServerMessageType::FlagsChanged));
    server.keyboardRemoved(1);
    EXPECT_EQ(client.heard.back().flags, 0U);
}

TEST_F(ClientsTest, OneThatDoesNotReadIsOwedTheLastStateAlone) {
    hello(client);
    client.take();
    client.full = true;
    for (int i = 0; i < 1000; ++i) {
        press(42, 1);
        press(42, 0);
    }
    press(54, 1); // KEY_RIGHTSHIFT
    plug(bar);
    client.full = false;
    server.writable(client);
    const auto heard = client.take();
    ASSERT_THAT(heard, SizeIs(2));
    EXPECT_EQ(heard[0].flags, kFlagShift | kFlagRightShift);
    EXPECT_EQ(heard[1].barsKnown, 1);
}

TEST_F(ClientsTest, OneThatHearsNoAnswersIsDropped) {
    connect(client);
    client.full = true;
    ClientMessage message;
    message.type = ClientMessageType::Hello;
    message.version = kVersion;
    say(client, message);
    EXPECT_TRUE(client.closed);
}

} // namespace barquell::test
