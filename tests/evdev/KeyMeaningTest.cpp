#include "evdev/KeyMeaning.h"
#include "evdev/Codes.h"

#include <gtest/gtest.h>

#include <array>

namespace barquell::test {

using namespace evdev;

namespace {

constexpr std::uint16_t kKeyFn = 0x1d0;
constexpr std::uint16_t kKeyLeftShift = 42;
constexpr std::uint16_t kKeyA = 30;
constexpr std::uint16_t kKeyVolumeUp = 115;

InputEvent key(std::uint16_t code, std::int32_t value) {
    return {0, kEvKey, code, value};
}

} // namespace

TEST(KeyMeaningTest, EachModifierHoldsItsGenericAndItsSideBit) {
    struct Case {
        std::uint16_t code;
        ModifierFlags flags;
    };
    constexpr std::array cases{Case{29, 0x40001},   Case{97, 0x42000},   Case{42, 0x20002},
                               Case{54, 0x20004},   Case{56, 0x80020},   Case{100, 0x80040},
                               Case{125, 0x100008}, Case{126, 0x100010}, Case{kKeyFn, 0x800000}};
    for (const Case &each : cases) {
        KeyMeaning keys;
        EXPECT_EQ(keys.feed(key(each.code, 1)), EventType::FlagsChanged);
        EXPECT_EQ(keys.flags(), each.flags) << each.code;
        EXPECT_EQ(keys.feed(key(each.code, 0)), EventType::FlagsChanged);
        EXPECT_EQ(keys.flags(), 0U);
    }
}

TEST(KeyMeaningTest, AModifierThatRepeatsOrIsToldTwiceMeansNothing) {
    KeyMeaning keys;
    EXPECT_EQ(keys.feed(key(kKeyFn, 0)), std::nullopt); // an orphan
    keys.feed(key(kKeyFn, 1));
    EXPECT_EQ(keys.feed(key(kKeyFn, 1)), std::nullopt);
    EXPECT_EQ(keys.feed(key(kKeyFn, 2)), std::nullopt);
    EXPECT_EQ(keys.flags(), kFlagFn);
}

TEST(KeyMeaningTest, LettersMeanNothing) {
    KeyMeaning keys;
    EXPECT_EQ(keys.feed(key(kKeyA, 1)), std::nullopt);
    EXPECT_EQ(keys.feed({0, kEvAbs, kKeyFn, 1}), std::nullopt);
    EXPECT_EQ(keys.feed(key(0xffff, 1)), std::nullopt);
    EXPECT_EQ(keys.flags(), 0U);
}

TEST(KeyMeaningTest, MediaKeysAreSystemDefinedAlsoWhenTheyRepeat) {
    KeyMeaning keys;
    EXPECT_EQ(keys.feed(key(kKeyVolumeUp, 2)), std::nullopt); // was never pressed
    EXPECT_EQ(keys.feed(key(kKeyVolumeUp, 1)), EventType::SystemDefined);
    EXPECT_EQ(keys.feed(key(kKeyVolumeUp, 1)), std::nullopt);
    EXPECT_EQ(keys.feed(key(kKeyVolumeUp, 2)), EventType::SystemDefined);
    EXPECT_EQ(keys.feed(key(kKeyVolumeUp, 0)), EventType::SystemDefined);
    EXPECT_EQ(keys.flags(), 0U);
}

TEST(KeyMeaningTest, ModifiersAddUp) {
    KeyMeaning keys;
    keys.feed(key(kKeyFn, 1));
    keys.feed(key(kKeyLeftShift, 1));
    EXPECT_EQ(keys.flags(), kFlagFn | kFlagShift | kFlagLeftShift);
    keys.feed(key(kKeyFn, 0));
    EXPECT_EQ(keys.flags(), kFlagShift | kFlagLeftShift);
}

} // namespace barquell::test
