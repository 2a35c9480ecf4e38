#include "foundation/interface/Image.h"
#include "support/LogCapture.h"

#include <QPainter>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

TEST(ImageTest, AnImageIsFoundByItsName) {
    const QIcon image = imageNamed(QStringLiteral("Dot"));
    const QImage drawn = image.pixmap(32, 32).toImage();
    ASSERT_EQ(drawn.size(), QSize(32, 32));
    EXPECT_EQ(drawn.pixelColor(16, 16), QColor(Qt::black));
    EXPECT_EQ(drawn.pixelColor(0, 0).alpha(), 0);
}

TEST(ImageTest, ADrawnImageIsThereInEverySize) {
    const QIcon image = imageNamed(QStringLiteral("Drawn"));
    EXPECT_TRUE(image.availableSizes().contains(QSize(22, 22)));
    for (const int side : {16, 22, 30, 128, 300}) { // drawn so, between two, and above all
        const QImage drawn = image.pixmap(side, side).toImage();
        ASSERT_EQ(drawn.size(), QSize(side, side));
        EXPECT_EQ(drawn.pixelColor(side / 4, side / 2), QColor(0x20, 0x40, 0x80)) << side;
        EXPECT_EQ(drawn.pixelColor(3 * side / 4, side / 2).alpha(), 0) << side;
    }
}

TEST(ImageTest, ADrawnImageIsPaintedWhereItIsWanted) {
    QImage canvas(40, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    imageNamed(QStringLiteral("Drawn")).paint(&painter, QRect(10, 10, 20, 20));
    painter.end();
    EXPECT_EQ(canvas.pixelColor(12, 20), QColor(0x20, 0x40, 0x80));
    EXPECT_EQ(canvas.pixelColor(8, 20), QColor(Qt::white));
    EXPECT_EQ(canvas.pixelColor(27, 20), QColor(Qt::white));
}

TEST(ImageTest, AMissingImageIsNullAndSaid) {
    const LogCapture logged;
    EXPECT_TRUE(imageNamed(QStringLiteral("NoSuchImage")).isNull());
    EXPECT_EQ(logged.lines.size(), 1);
}

} // namespace
} // namespace barquell::test
