#include "platform/linux/protocol/Protocol.h"

#include <gmock/gmock.h>

#include <limits>

namespace barquell::test {

using namespace protocol;
using testing::Eq;
using testing::Optional;

namespace {

ClientMessage clientMessage(ClientMessageType type) {
    ClientMessage message;
    message.type = type;
    return message;
}

ServerMessage frameMessage() {
    ServerMessage message;
    message.type = ServerMessageType::Frame;
    message.frame = 1;
    message.listedTouches = 1;
    message.touchCounts[0] = 1;
    message.touches[0] = {kTouchBegan, 3, 0.5F, 0.25F};
    return message;
}

bool decodes(const ClientMessage &message) {
    return decodeClientMessage(packetOf(message)).has_value();
}
bool decodes(const ServerMessage &message) {
    return decodeServerMessage(packetOf(message)).has_value();
}

} // namespace

TEST(Protocol, AMessageIsWhatItsPacketSays) {
    ClientMessage verdict = clientMessage(ClientMessageType::Verdict);
    verdict.frame = 77;
    verdict.on = 1;
    EXPECT_THAT(decodeClientMessage(packetOf(verdict)), Optional(Eq(verdict)));
    EXPECT_THAT(decodeServerMessage(packetOf(frameMessage())), Optional(Eq(frameMessage())));
}

TEST(Protocol, APacketOfAnotherSizeIsNone) {
    const ClientMessage message = clientMessage(ClientMessageType::DestroyTap);
    EXPECT_FALSE(decodeClientMessage(packetOf(message).first(31)));
    EXPECT_FALSE(decodeClientMessage({}));
    EXPECT_FALSE(decodeServerMessage(packetOf(message)));
}

TEST(Protocol, UnknownTypesAreNone) {
    EXPECT_FALSE(decodes(clientMessage(ClientMessageType{})));
    EXPECT_FALSE(decodes(clientMessage(ClientMessageType{8})));
    ServerMessage message;
    EXPECT_FALSE(decodes(message));
    message.type = ServerMessageType{10};
    EXPECT_FALSE(decodes(message));
}

TEST(Protocol, FieldsOfOtherMessagesAreZero) {
    ClientMessage message = clientMessage(ClientMessageType::DestroyTap);
    message.frame = 1;
    EXPECT_FALSE(decodes(message));
    message = clientMessage(ClientMessageType::Hello);
    message.zero = 1;
    EXPECT_FALSE(decodes(message));
    ServerMessage flags;
    flags.type = ServerMessageType::FlagsChanged;
    flags.frame = 1;
    EXPECT_FALSE(decodes(flags));
}

TEST(Protocol, AHolderIsAProcessOrOneOfTheTwoOthers) {
    ServerMessage welcome;
    welcome.type = ServerMessageType::Welcome;
    for (const std::int32_t holder : {kAnotherUser, kNobody, 1, 4194304}) {
        welcome.holder = holder;
        EXPECT_TRUE(decodes(welcome)) << holder;
    }
    welcome.holder = -2;
    EXPECT_FALSE(decodes(welcome));
    ServerMessage bars;
    bars.type = ServerMessageType::Bars;
    bars.holder = 1;
    EXPECT_FALSE(decodes(bars));
}

TEST(Protocol, WishesAboutTheGrantCarryAVersionAlone) {
    for (const auto type : {ClientMessageType::RequestGrant, ClientMessageType::WithdrawGrant}) {
        ClientMessage message = clientMessage(type);
        message.version = kVersion;
        EXPECT_TRUE(decodes(message));
        message.on = 1;
        EXPECT_FALSE(decodes(message));
    }
    for (const auto type : {ServerMessageType::Granted, ServerMessageType::Withdrawn}) {
        ServerMessage message;
        message.type = type;
        EXPECT_TRUE(decodes(message));
        message.reason = Refusal::Denied;
        EXPECT_FALSE(decodes(message));
    }
}

TEST(Protocol, ARefusalHasAReason) {
    ServerMessage message;
    message.type = ServerMessageType::Refused;
    EXPECT_FALSE(decodes(message));
    for (const auto reason : {Refusal::Version, Refusal::NotGranted, Refusal::Failed}) {
        message.reason = reason;
        EXPECT_TRUE(decodes(message));
    }
    message.reason = Refusal{8};
    EXPECT_FALSE(decodes(message));
}

TEST(Protocol, InFrontIsATruthValueOfAWelcome) {
    ServerMessage message;
    message.type = ServerMessageType::Welcome;
    message.inFront = 1;
    EXPECT_TRUE(decodes(message));
    message.inFront = 2;
    EXPECT_FALSE(decodes(message));
    message.inFront = 1;
    message.type = ServerMessageType::Bars;
    EXPECT_FALSE(decodes(message));
    message = {};
    message.type = ServerMessageType::Welcome;
    message.zero = 1;
    EXPECT_FALSE(decodes(message));
}

TEST(Protocol, OnIsATruthValue) {
    ClientMessage message = clientMessage(ClientMessageType::SetEnabled);
    message.on = 2;
    EXPECT_FALSE(decodes(message));
}

TEST(Protocol, AFrameThatCannotBeIsNone) {
    ServerMessage frame = frameMessage();
    frame.listedTouches = 17;
    EXPECT_FALSE(decodes(frame));
    frame = frameMessage();
    frame.touchCounts[0] = 0;
    EXPECT_FALSE(decodes(frame)) << "a touch that is listed and not counted";
    frame = frameMessage();
    frame.touches[0].phase = kTouchBegan | kTouchMoved;
    EXPECT_FALSE(decodes(frame));
    frame = frameMessage();
    frame.touches[0].x = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(decodes(frame));
    frame = frameMessage();
    frame.touches[1].id = 1;
    EXPECT_FALSE(decodes(frame)) << "something behind the listed touches";
}

TEST(Protocol, TouchesAreCountedByPhases) {
    ServerMessage frame = frameMessage();
    frame.touchCounts = {1, 2, 4, 8, 16};
    EXPECT_EQ(touchCount(frame, kTouching), 7);
    EXPECT_EQ(touchCount(frame, kTouchEnded | kTouchCancelled), 24);
    EXPECT_EQ(touchCount(frame, 0), 0);
}

} // namespace barquell::test
