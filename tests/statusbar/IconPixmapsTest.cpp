#include "platform/linux/statusbar/IconPixmaps.h"

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <gmock/gmock.h>

#include <filesystem>
#include <iterator>

namespace barquell::test {
namespace {

QIcon square() {
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::red); // a template's own colour does not count
    return QIcon(pixmap);
}

/// As alpha, red, green, blue.
std::vector<int> pixel(const IconPixmap &pixmap, int x, int y) {
    const qsizetype start = 4 * (static_cast<qsizetype>(pixmap.width) * y + x);
    std::vector<int> bytes;
    for (qsizetype index = start; index < start + 4; ++index) {
        bytes.push_back(static_cast<unsigned char>(pixmap.bytes.at(index)));
    }
    return bytes;
}

std::vector<int> middle(const IconPixmap &pixmap) {
    return pixel(pixmap, pixmap.width / 2, pixmap.height / 2);
}

TEST(IconPixmapsTest, TheShapeTakesTheColourInTheOrderAlphaRedGreenBlue) {
    for (const IconPixmap &pixmap : iconPixmaps(square(), QColor(10, 20, 30), 1)) {
        EXPECT_THAT(middle(pixmap), testing::ElementsAre(255, 10, 20, 30));
    }
}

TEST(IconPixmapsTest, OpacityIsInTheAlphaAloneAndNotMultipliedIntoTheColour) {
    for (const IconPixmap &pixmap : iconPixmaps(square(), QColor(10, 200, 30), 0.5)) {
        const std::vector<int> pixel = middle(pixmap);
        EXPECT_NEAR(pixel[0], 128, 1);
        EXPECT_NEAR(pixel[1], 10, 2);
        EXPECT_NEAR(pixel[2], 200, 2);
        EXPECT_NEAR(pixel[3], 30, 2);
    }
}

TEST(IconPixmapsTest, AThinHaloOfTheOppositeLightnessLiesAroundTheShapeAndDimsWithIt) {
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).fillRect(8, 8, 16, 16, Qt::red);
    for (const auto &[color, around] : {std::pair(Qt::black, 255), std::pair(Qt::white, 0)}) {
        for (const double opacity : {1.0, 0.5}) {
            const IconPixmap at32 = iconPixmaps(QIcon(pixmap), color, opacity).at(3);
            ASSERT_EQ(at32.width, 32);
            const std::vector<int> halo = pixel(at32, 7, 16);
            EXPECT_NEAR(halo[0], 255 * 0.65 * opacity, 2);
            EXPECT_NEAR(halo[1], around, 2);
            EXPECT_NEAR(pixel(at32, 8, 16)[0], 255 * opacity, 1);
            EXPECT_EQ(pixel(at32, 8, 16)[1], 255 - around);
            EXPECT_EQ(pixel(at32, 6, 16)[0], 0);
        }
    }
}

TEST(IconPixmapsTest, EverySizeThatPanelsUseIsThereAndWhole) {
    std::vector<int> sizes;
    for (const IconPixmap &pixmap : iconPixmaps(square(), Qt::black, 1)) {
        EXPECT_EQ(pixmap.width, pixmap.height);
        EXPECT_EQ(pixmap.bytes.size(), 4 * pixmap.width * pixmap.height);
        sizes.push_back(pixmap.width);
    }
    EXPECT_THAT(sizes, testing::IsSupersetOf({16, 22, 24, 32, 48, 64}));
}

std::ptrdiff_t threads() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                         std::filesystem::directory_iterator());
}

TEST(IconPixmapsTest, NoThreadIsStartedThatWouldStay) {
    const auto before = threads();
    EXPECT_FALSE(iconPixmaps(square(), Qt::black, 1).isEmpty());
    EXPECT_EQ(threads(), before);
}

TEST(IconPixmapsTest, AMissingImageMakesNoPixmaps) {
    EXPECT_TRUE(iconPixmaps(QIcon(), Qt::black, 1).isEmpty());
    EXPECT_TRUE(coloredIcon(QIcon(), Qt::black, 1).isNull());
}

} // namespace
} // namespace barquell::test
