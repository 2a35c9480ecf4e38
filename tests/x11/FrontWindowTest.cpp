#include "platform/linux/x11/FrontWindow.h"

#include <gtest/gtest.h>

namespace barquell::test {

TEST(FrontWindowTest, WithoutAnXServerNothingIsKnown) {
    qunsetenv("WAYLAND_DISPLAY");
    for (const char *display : {"", ":4711", "nonsense", "nowhere.invalid:0"}) {
        qputenv("DISPLAY", display);
        const FrontWindow front(XDesktop::open(), [] { FAIL(); });
        EXPECT_FALSE(front.isKnown()) << display;
        EXPECT_FALSE(front.facts());
    }
}

TEST(FrontWindowTest, AGuestInAWaylandSessionKnowsNothing) {
    qputenv("DISPLAY", ":0");
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_EQ(XDesktop::open(), nullptr);
}

} // namespace barquell::test
