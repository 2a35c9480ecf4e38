#include "foundation/interface/Image.h"
#include "support/LogCapture.h"

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

TEST(ImageTest, AMissingImageIsNullAndSaid) {
    const LogCapture logged;
    EXPECT_TRUE(imageNamed(QStringLiteral("NoSuchImage")).isNull());
    EXPECT_EQ(logged.lines.size(), 1);
}

} // namespace
} // namespace barquell::test
