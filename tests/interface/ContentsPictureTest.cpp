#include "foundation/interface/ContentsPicture.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include <memory>

namespace barquell::test {
namespace {

/// A view that paints itself red all over, which is not wanted.
class RedView final : public QWidget {
protected:
    void paintEvent(QPaintEvent * /*event*/) override { QPainter(this).fillRect(rect(), Qt::red); }
};

class ContentsPictureTest : public testing::Test {
protected:
    ContentsPictureTest() {
        view.resize(100, 50);
        QPixmap green(40, 20);
        green.fill(Qt::green);
        part.setPixmap(green);
        part.setGeometry(50, 10, 40, 20);
    }

    QColor at(qreal scale, int x, int y) { return contentsPicture(view, scale).toImage().pixelColor(x, y); }

    RedView view;
    QLabel part{&view};
};

TEST_F(ContentsPictureTest, ShowsThePartsWithoutTheViewItself) {
    EXPECT_EQ(at(1, 60, 20), QColor(Qt::green));
    EXPECT_EQ(at(1, 20, 20).alpha(), 0);
    EXPECT_EQ(contentsPicture(view, 1).size(), QSize(100, 50));
}

TEST_F(ContentsPictureTest, IsAsFineAsTheScreen) {
    const QPixmap picture = contentsPicture(view, 2);
    EXPECT_EQ(picture.size(), QSize(200, 100));
    EXPECT_EQ(picture.devicePixelRatio(), 2);
    EXPECT_EQ(at(2, 178, 58), QColor(Qt::green));
    EXPECT_EQ(at(2, 98, 40).alpha(), 0);
}

TEST_F(ContentsPictureTest, LeavesOutWhatIsHiddenOnPurpose) {
    part.hide();
    EXPECT_EQ(at(1, 60, 20).alpha(), 0);
}

TEST_F(ContentsPictureTest, LaysOutAViewThatWasNeverShown) {
    auto *layout = std::make_unique<QVBoxLayout>(&view).release(); // the view's
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&part, 0, Qt::AlignBottom | Qt::AlignRight);
    EXPECT_EQ(at(1, 99, 49), QColor(Qt::green));
    EXPECT_EQ(at(1, 60, 10).alpha(), 0);
    EXPECT_FALSE(view.isVisible());
}

} // namespace
} // namespace barquell::test
