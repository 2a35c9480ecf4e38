#include "platform/linux/keys/XModifiers.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

using testing::UnorderedElementsAre;

constexpr std::uint16_t kShift = XCB_MOD_MASK_SHIFT;
constexpr std::uint16_t kLock = XCB_MOD_MASK_LOCK;
constexpr std::uint16_t kControl = XCB_MOD_MASK_CONTROL;
constexpr std::uint16_t kAlt = XCB_MOD_MASK_1;
constexpr std::uint16_t kNumLock = XCB_MOD_MASK_2;
constexpr std::uint16_t kSuper = XCB_MOD_MASK_4;

constexpr XModifiers kUsual{.command = kSuper, .option = kAlt, .numLock = kNumLock};

} // namespace

TEST(XModifiersTest, CommandIsSuperAndOptionIsAlt) {
    EXPECT_EQ(kUsual.mask(kHotKeyCommand), kSuper);
    EXPECT_EQ(kUsual.mask(kHotKeyOption), kAlt);
    EXPECT_EQ(kUsual.mask(kHotKeyControl | kHotKeyShift), kControl | kShift);
    EXPECT_EQ(kUsual.mask(0), 0);
}

TEST(XModifiersTest, AModifierThatNoKeyHoldsCannotBeAskedFor) {
    EXPECT_EQ(XModifiers{}.mask(kHotKeyCommand), std::nullopt);
    EXPECT_EQ(XModifiers{}.mask(kHotKeyControl), kControl);
}

TEST(XModifiersTest, EachCombinationOfTheLocksIsGrabbed) {
    EXPECT_THAT(kUsual.withLocks(kAlt),
                UnorderedElementsAre(kAlt, kAlt | kLock, kAlt | kNumLock, kAlt | kLock | kNumLock));
    EXPECT_THAT(XModifiers{}.withLocks(0), UnorderedElementsAre(0, kLock));
}

TEST(XModifiersTest, ALockThatIsAskedForMustBeOn) {
    EXPECT_THAT(kUsual.withLocks(kLock), UnorderedElementsAre(kLock, kLock | kNumLock));
    EXPECT_FALSE(kUsual.matches(0, kLock));
}

TEST(XModifiersTest, LocksLayoutAndButtonsDoNotKeepAPressFromMatching) {
    constexpr std::uint16_t kLayoutTwo = 1U << 13;
    EXPECT_TRUE(kUsual.matches(kAlt | kLock | kNumLock | kLayoutTwo | XCB_BUTTON_MASK_1, kAlt));
    EXPECT_FALSE(kUsual.matches(kAlt | kShift, kAlt));
    EXPECT_FALSE(kUsual.matches(0, kAlt));
}

} // namespace barquell::test
