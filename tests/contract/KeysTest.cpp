// Hot keys, and what keys are called.

#include "contract/ContractPlace.h"
#include "platform/HotKeys.h"
#include "platform/KeyboardLayout.h"

#include <QSet>

namespace barquell::test {
namespace {

constexpr std::uint32_t kKeyU = 32;
constexpr std::uint32_t kKeyI = 34;
constexpr HotKeyModifiers kUnlikely = kHotKeyCommand | kHotKeyOption | kHotKeyControl | kHotKeyShift;
constexpr std::uint32_t kSignature = 0x76787363;

class HotKeysContract : public Contract {
protected:
    void SetUp() override {
        NEEDS(hotKeys);
        ASSERT_EQ(pieces.hotKeys->installHandler([](HotKeyId) { return true; }), kHotKeySuccess);
    }

    HotKeys::Registration take(std::uint32_t key, std::uint32_t number) const {
        return pieces.hotKeys->registerHotKey(key, kUnlikely, {kSignature, number}, true);
    }
};

TEST_P(HotKeysContract, ACombinationIsHeldOnce) {
    const auto first = take(kKeyU, 1);
    ASSERT_EQ(first.status, kHotKeySuccess);
    ASSERT_NE(first.hotKey, nullptr);
    const auto second = take(kKeyU, 2);
    EXPECT_NE(second.status, kHotKeySuccess);
    EXPECT_EQ(second.hotKey, nullptr);
    EXPECT_EQ(take(kKeyI, 3).status, kHotKeySuccess);
}

TEST_P(HotKeysContract, ACombinationIsFreeAgainWhenItWasGivenBack) {
    auto held = take(kKeyU, 1);
    ASSERT_EQ(held.status, kHotKeySuccess);
    EXPECT_EQ(held.hotKey->unregister(), kHotKeySuccess);
    auto again = take(kKeyU, 2);
    EXPECT_EQ(again.status, kHotKeySuccess);
    again.hotKey.reset();
    EXPECT_EQ(take(kKeyU, 3).status, kHotKeySuccess);
}

ON_EVERY_PLACE(HotKeysContract);

class KeyboardLayoutContract : public Contract {};

TEST_P(KeyboardLayoutContract, TheLettersHaveNamesOfTheirOwn) {
    constexpr std::uint16_t kLetters[] = {
        0,  11, 8,  2,  14, 3, 5,  4,  34, 38, 40, 37, 46,
        45, 31, 35, 12, 15, 1, 17, 32, 9,  13, 7,  16, 6}; // A to Z on an ANSI keyboard
    QSet<QString> names;
    for (const std::uint16_t key : kLetters) {
        const std::optional<QString> name = pieces.keyboardLayout->displayName(key);
        ASSERT_TRUE(name.has_value() && !name->isEmpty()) << key;
        names.insert(*name);
    }
    EXPECT_EQ(names.size(), 26);
}

ON_EVERY_PLACE(KeyboardLayoutContract);

} // namespace
} // namespace barquell::test
