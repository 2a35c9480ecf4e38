#include "app/linux/TapHolder.h"

#include <gtest/gtest.h>

namespace barquell::test {

namespace {

constexpr qint64 kOurs = 77;

TapHolder holderOf(std::int32_t process, std::optional<qint64> ours = kOurs) {
    return TapHolder({.type = protocol::ServerMessageType::Welcome, .holder = process}, ours);
}

} // namespace

TEST(TapHolderTest, TheRunningCopyIsKnownByItsProcess) {
    EXPECT_TRUE(holderOf(77).isOurs());
    EXPECT_EQ(holderOf(77).name(), QStringLiteral("Barquell"));
}

TEST(TapHolderTest, AnotherProcessIsNamed) {
    EXPECT_FALSE(holderOf(78).isOurs());
    EXPECT_EQ(holderOf(78).name(), QStringLiteral("process 78"));
    EXPECT_EQ(holderOf(78).mend(), QStringLiteral("end it: kill 78"));
}

TEST(TapHolderTest, WithoutARunningCopyNothingIsOurs) {
    EXPECT_FALSE(holderOf(77, std::nullopt).isOurs());
    EXPECT_FALSE(holderOf(protocol::kNobody, std::nullopt).isOurs());
}

TEST(TapHolderTest, AnotherUsersProcessHasNoNumber) {
    EXPECT_EQ(holderOf(protocol::kAnotherUser).name(), QStringLiteral("a process of another user"));
    EXPECT_FALSE(holderOf(protocol::kAnotherUser).mend().contains(QStringLiteral("kill")));
}

TEST(TapHolderTest, NobodyIsNobody) {
    EXPECT_TRUE(holderOf(protocol::kNobody).isNobody());
    EXPECT_EQ(holderOf(protocol::kNobody).name(), QStringLiteral("nobody"));
}

} // namespace barquell::test
