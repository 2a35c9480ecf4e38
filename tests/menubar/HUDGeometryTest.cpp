#include "menubar/hud/HUDGeometry.h"

#include <gmock/gmock.h>

#include <limits>

namespace barquell::test {

namespace {

const QRectF kScreen(100, -200, 1440, 900); // neither beside nor above the primary screen
const QSizeF kSize(112, 80);

QPointF originAt(int location) {
    const QRectF frame = hudFrame(location, kScreen, kSize);
    EXPECT_EQ(frame.size(), kSize);
    return frame.topLeft(); // with y upward: the lower left corner
}

} // namespace

TEST(HUDGeometryTest, TheCornersAreTenPointsFromTheEdgesOfTheScreen) {
    EXPECT_EQ(originAt(1), QPointF(1418, 610));
    EXPECT_EQ(originAt(2), QPointF(1418, -190));
    EXPECT_EQ(originAt(3), QPointF(110, 610));
    EXPECT_EQ(originAt(4), QPointF(110, -190));
}

TEST(HUDGeometryTest, TheCentreIsFourFifteenthsOfTheHeightAboveTheLowerEdge) {
    EXPECT_EQ(originAt(0), QPointF(100 + (1440 - 112) * 0.5, -200 + 240 - 40));
}

TEST(HUDGeometryTest, AnyOtherNumberIsTheCentreWithTheSmallView) {
    for (const int location : {5, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(originAt(location), originAt(0)) << location;
        EXPECT_FALSE(hudUsesLargeView(location)) << location;
    }
}

TEST(HUDGeometryTest, TheCentreAloneUsesTheLargeView) {
    EXPECT_TRUE(hudUsesLargeView(0));
    for (const int corner : {1, 2, 3, 4}) {
        EXPECT_FALSE(hudUsesLargeView(corner));
    }
}

TEST(HUDGeometryTest, WithoutAScreenThePanelStandsRelativeToTheZeroRectangle) {
    EXPECT_EQ(hudFrame(1, QRectF(), kSize), QRectF(-122, -90, 112, 80));
    EXPECT_EQ(hudFrame(4, QRectF(), kSize), QRectF(10, 10, 112, 80));
    EXPECT_EQ(hudFrame(0, QRectF(), kSize), QRectF(-56, -40, 112, 80));
}

TEST(HUDGeometryTest, HalfPointsStayForTheEdgeToRound) {
    EXPECT_EQ(hudFrame(0, QRectF(0, 0, 1365, 768), QSizeF(240, 200)).x(), 562.5);
    EXPECT_NEAR(hudFrame(0, QRectF(0, 0, 1365, 768), QSizeF(240, 200)).y(), 104.8, 1e-9);
}

} // namespace barquell::test
