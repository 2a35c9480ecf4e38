#include "platform/linux/keys/NullHotKeys.h"

#include "platform/linux/keys/LinuxKeys.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell::test {

TEST(NullHotKeysTest, EveryKeyCountsAsHeldAndOneLineIsSaid) {
    const LogCapture log;
    NullHotKeys keys;
    EXPECT_EQ(keys.installHandler([](HotKeyId) { return true; }), kHotKeySuccess);
    EXPECT_THAT(log.lines, testing::IsEmpty());
    const auto first = keys.registerHotKey(96, 0, {1, 1}, true);
    const auto second = keys.registerHotKey(96, 0, {1, 2}, true);
    EXPECT_EQ(first.status, kHotKeySuccess);
    EXPECT_EQ(second.status, kHotKeySuccess);
    ASSERT_TRUE(first.hotKey);
    EXPECT_EQ(first.hotKey->unregister(), kHotKeySuccess);
    EXPECT_THAT(log.lines, testing::ElementsAre(
                               QStringLiteral("Global shortcuts need an X11 session; here they do nothing")));
}

TEST(NullHotKeysTest, APlaceWithoutXWindowsGetsThem) {
    const LogCapture log;
    LinuxKeys keys; // on the offscreen platform
    EXPECT_EQ(keys.hotKeys().registerHotKey(96, 0, {1, 1}, true).status, kHotKeySuccess);
    EXPECT_THAT(log.lines, testing::SizeIs(1));
    EXPECT_EQ(keys.keyboardLayout().displayName(53), std::nullopt);
}

} // namespace barquell::test
