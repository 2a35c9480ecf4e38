#include "menubar/hud/HUDPicture.h"
#include "menubar/hud/TouchBarHUDVariant.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

QImage picture(QWidget &view, double scale) {
    QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

QPalette withColors(QColor window, QColor text) {
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    return palette;
}

} // namespace

TEST(HUDViewsTest, AVariantPutsItsViewsAtTheOriginAndRoundsThem) {
    HUDPlate large;
    HUDPlate small;
    large.setGeometry(30, 40, 240, 200);
    small.setGeometry(50, 60, 112, 80);
    TouchBarHUDVariant variant;
    variant.setLargeView(&large);
    variant.setSmallView(&small);
    variant.awakeFromNib();
    EXPECT_EQ(large.geometry(), QRect(0, 0, 240, 200));
    EXPECT_EQ(small.geometry(), QRect(0, 0, 112, 80));
    EXPECT_EQ(large.cornerRadius(), 20);
    EXPECT_EQ(small.cornerRadius(), 20);
}

TEST(HUDViewsTest, APlateIsTranslucentInTheColourOfWindowsAndClearOutsideItsCorners) {
    HUDPlate plate;
    plate.resize(112, 80);
    plate.setCornerRadius(20);
    for (const QColor &color : {QColor(0xef, 0xef, 0xef), QColor(0x20, 0x20, 0x24)}) {
        plate.setPalette(withColors(color, Qt::red));
        for (const double scale : {1.0, 1.5, 2.0}) {
            const QImage image = picture(plate, scale);
            EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
            EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1).alpha(), 0);
            const QColor middle = image.pixelColor(image.rect().center());
            EXPECT_GT(middle.alpha(), 220);
            EXPECT_LT(middle.alpha(), 255);
            EXPECT_NEAR(middle.red(), color.red(), 2);
            EXPECT_NEAR(middle.blue(), color.blue(), 2);
        }
    }
}

TEST(HUDViewsTest, APictureIsInTheInkOfTextAndAsFineAsTheScreen) {
    HUDPicture view;
    view.resize(80, 48);
    view.setPalette(withColors(Qt::white, QColor(10, 200, 30)));
    view.setImage(QStringLiteral("HUDOnSmall"));
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QImage image = picture(view, scale);
        // In the escape key, which is filled; and in the bar outside of every key.
        EXPECT_EQ(image.pixelColor(qRound(13 * scale), qRound(20 * scale)), QColor(10, 200, 30)) << scale;
        EXPECT_EQ(image.pixelColor(qRound(19.5 * scale), qRound(25 * scale)).alpha(), 0) << scale;
    }
    // Twice as fine and not just magnified: some pair of pixels that a magnified picture has equal differs.
    const QImage fine = picture(view, 2);
    bool differs = false;
    for (int y = 0; y < fine.height(); y += 2) {
        for (int x = 0; x < fine.width(); x += 2) {
            differs = differs || fine.pixel(x, y) != fine.pixel(x + 1, y);
        }
    }
    EXPECT_TRUE(differs);
}

TEST(HUDViewsTest, AMissingPictureIsOneLineAndPaintsNothing) {
    const LogCapture log;
    HUDPicture view;
    view.resize(80, 48);
    view.setImage(QStringLiteral("NoSuchPicture"));
    EXPECT_EQ(log.lines, QStringList(QStringLiteral("The image \"NoSuchPicture\" is missing")));
    EXPECT_EQ(picture(view, 1).pixelColor(13, 20).alpha(), 0);
}

} // namespace barquell::test
