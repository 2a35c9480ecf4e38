#include "platform/linux/keys/VirtualKeys.h"

#include <gmock/gmock.h>

#include <linux/input-event-codes.h>

#include <array>
#include <map>

namespace barquell::test {

TEST(VirtualKeysTest, LettersLieWhereAUsKeyboardHasThem) {
    EXPECT_EQ(evdevCodeForVirtualKey(0), KEY_A);
    EXPECT_EQ(evdevCodeForVirtualKey(32), KEY_U);
    EXPECT_EQ(virtualKeyForEvdevCode(KEY_A), 0);
    EXPECT_EQ(virtualKeyForEvdevCode(KEY_DOT), 47);
}

TEST(VirtualKeysTest, TheFunctionKeysAreAllThere) {
    constexpr std::array<std::uint32_t, 20> kVirtual{122, 120, 99,  118, 96,  97,  98, 100, 101, 109,
                                                     103, 111, 105, 107, 113, 106, 64, 79,  80,  90};
    constexpr std::array<std::uint16_t, 20> kEvdev{
        KEY_F1,  KEY_F2,  KEY_F3,  KEY_F4,  KEY_F5,  KEY_F6,  KEY_F7,  KEY_F8,  KEY_F9,  KEY_F10,
        KEY_F11, KEY_F12, KEY_F13, KEY_F14, KEY_F15, KEY_F16, KEY_F17, KEY_F18, KEY_F19, KEY_F20};
    for (std::size_t i = 0; i < kVirtual.size(); ++i) {
        EXPECT_EQ(evdevCodeForVirtualKey(kVirtual.at(i)), kEvdev.at(i));
    }
}

TEST(VirtualKeysTest, EachKeyLeadsToOneKeyAndBack) {
    std::map<std::uint16_t, std::uint32_t> seen;
    std::vector<std::uint32_t> unknown;
    for (std::uint32_t virtualKey = 0; virtualKey <= 0x7E; ++virtualKey) {
        if (const auto code = evdevCodeForVirtualKey(virtualKey)) {
            EXPECT_TRUE(seen.emplace(*code, virtualKey).second) << virtualKey;
            EXPECT_EQ(virtualKeyForEvdevCode(*code), virtualKey);
        } else {
            unknown.push_back(virtualKey);
        }
    }
    // The numbers between 0 and kVK_UpArrow that Events.h gives to no key.
    EXPECT_THAT(unknown, testing::ElementsAre(0x34, 0x42, 0x44, 0x46, 0x4D, 0x6C, 0x70));
}

TEST(VirtualKeysTest, UnknownKeysHaveNoCode) {
    EXPECT_EQ(evdevCodeForVirtualKey(0x34), std::nullopt);
    EXPECT_EQ(evdevCodeForVirtualKey(0xFFFFFFFF), std::nullopt);
    EXPECT_EQ(virtualKeyForEvdevCode(KEY_PLAYPAUSE), std::nullopt);
    EXPECT_EQ(virtualKeyForXKeyCode(0), std::nullopt);
    EXPECT_EQ(virtualKeyForXKeyCode(7), std::nullopt);
}

TEST(VirtualKeysTest, TheXServerCountsFromEight) {
    EXPECT_EQ(xKeyCodeForVirtualKey(96), 71);
    EXPECT_EQ(virtualKeyForXKeyCode(71), 96);
}

TEST(VirtualKeysTest, AKeyBeyondTheXServersReachHasNoCodeThere) {
    EXPECT_EQ(evdevCodeForVirtualKey(0x3F), KEY_FN);
    EXPECT_EQ(xKeyCodeForVirtualKey(0x3F), std::nullopt);
}

} // namespace barquell::test
