#include "preferences/WindowFrame.h"
#include "preferences/SizeString.h"

#include <QWidget>

#include <gmock/gmock.h>

#include <limits>

namespace barquell::test {

TEST(WindowFrameTest, TurningOverTwiceIsNothing) {
    const QRectF rect(3, 5, 100, 40);
    EXPECT_EQ(turnedOver(rect, 200), QRectF(3, 155, 100, 40));
    EXPECT_EQ(turnedOver(turnedOver(rect, 200), 200), rect);
}

TEST(WindowFrameTest, AResizeKeepsTheTopEdgeAndTheMiddleRoundedDown) {
    EXPECT_EQ(resizedAtTop(QRectF(100, 100, 400, 300), QSizeF(301, 350)), QRectF(149, 50, 301, 350));
    EXPECT_EQ(resizedAtTop(QRectF(100, 100, 301, 300), QSizeF(400, 200)), QRectF(50, 200, 400, 200));
}

TEST(WindowFrameTest, AResizeAboutTheMiddleRoundsDownOnBothAxes) {
    EXPECT_EQ(resizedAboutCenter(QRectF(100, 100, 400, 301), QSizeF(301, 400)), QRectF(149, 50, 301, 400));
}

TEST(WindowFrameTest, TheDeviceGetsWholePointsThatAWidgetCanHave) {
    EXPECT_EQ(onDevice(QRectF(1.4, 1.5, 10.5, 10.4)), QRect(1, 2, 11, 10));
    EXPECT_EQ(onDevice(QRectF(0, 0, 1e9, -5)).size(), QSize(QWIDGETSIZE_MAX, 0));
    const double most = std::numeric_limits<double>::max();
    EXPECT_EQ(onDevice(QRectF(-most, most, most, most)),
              QRect(-QWIDGETSIZE_MAX, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST(WindowFrameTest, TheWayBetweenFramesBeginsAndEndsAtThem) {
    const QRectF from(0, 0, 100, 100);
    const QRectF to(50, -20, 200, 120);
    EXPECT_EQ(between(from, to, 0), from);
    EXPECT_EQ(between(from, to, 1), to);
    EXPECT_EQ(between(from, to, 0.5), QRectF(25, -10, 150, 110));
}

TEST(SizeStringTest, SizesAreWrittenInBraces) {
    EXPECT_EQ(stringFromSize(QSizeF(480, 320)), QStringLiteral("{480, 320}"));
    EXPECT_EQ(stringFromSize(QSizeF(0, 0)), QStringLiteral("{0, 0}"));
    EXPECT_EQ(stringFromSize(QSizeF(480.5, 0.25)), QStringLiteral("{480.5, 0.25}"));
}

TEST(SizeStringTest, WhatIsWrittenIsReadBack) {
    for (const QSizeF size : {QSizeF(480, 320), QSizeF(1.0 / 3, 1e9), QSizeF(-4, 0)}) {
        EXPECT_EQ(sizeFromString(stringFromSize(size)), size);
    }
}

TEST(SizeStringTest, ReadingForgivesSpacingAndBraces) {
    EXPECT_EQ(sizeFromString(QStringLiteral("  480 ,320")), QSizeF(480, 320));
    EXPECT_EQ(sizeFromString(QStringLiteral("{width=480; height=320}")), QSizeF(480, 320));
    EXPECT_EQ(sizeFromString(QStringLiteral("{+1e2, -.5}")), QSizeF(100, -0.5));
}

TEST(SizeStringTest, WhatIsMissingIsZero) {
    EXPECT_EQ(sizeFromString({}), QSizeF(0, 0));
    EXPECT_EQ(sizeFromString(QStringLiteral("wide")), QSizeF(0, 0));
    EXPECT_EQ(sizeFromString(QStringLiteral("{480")), QSizeF(480, 0));
}

} // namespace barquell::test
