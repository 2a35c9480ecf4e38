#include "preferences/ContainerView.h"

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

const QRectF kBounds(10, 20, 200, 200);

} // namespace

TEST(ContainerLayoutTest, TheCentreIsRoundedDownAcross) {
    EXPECT_EQ(placeContent(kBounds, QSizeF(101, 100), ContainerLayoutCenter).x(), 10 + 49);
}

TEST(ContainerLayoutTest, TheCentreIsRoundedUpAlongTheHeight) {
    EXPECT_EQ(placeContent(kBounds, QSizeF(100, 101), ContainerLayoutCenter).y(), 20 + 50);
}

TEST(ContainerLayoutTest, TheRoundingHoldsForViewsLargerThanTheContainer) {
    const QRectF frame = placeContent(kBounds, QSizeF(301, 301), ContainerLayoutCenter);
    EXPECT_EQ(frame.topLeft(), QPointF(10 - 51, 20 - 50));
}

TEST(ContainerLayoutTest, TheBottomIsTheLowEndOfAnUpwardAxis) {
    EXPECT_EQ(placeContent(kBounds, QSizeF(100, 50), ContainerLayoutBottom), QRectF(60, 20, 100, 50));
}

TEST(ContainerLayoutTest, TheTopEdgesMeet) {
    EXPECT_EQ(placeContent(kBounds, QSizeF(100, 50.5), ContainerLayoutTop), QRectF(60, 169.5, 100, 50.5));
}

TEST(ContainerLayoutTest, FillingTakesTheBounds) {
    EXPECT_EQ(placeContent(kBounds, QSizeF(1, 1), ContainerLayoutFill), kBounds);
}

TEST(ContainerLayoutTest, AnyOtherModeIsTheBottom) {
    for (const std::uint32_t mode : {4U, 77U, 0xFFFFFFFFU}) {
        EXPECT_EQ(placeContent(kBounds, QSizeF(100, 50), mode).y(), kBounds.y()) << mode;
    }
}

namespace {

class ContainerViewTest : public testing::Test {
protected:
    ContainerViewTest() {
        container.resize(200, 200);
        container.show();
        view.resize(100, 50);
    }

    QWidget view; // outlives the container, as its owner would
    QWidget other;
    ContainerView container;
};

} // namespace

TEST_F(ContainerViewTest, TheViewIsTurnedOverToTheDevice) {
    container.setContentView(&view, ContainerLayoutTop);
    EXPECT_EQ(view.geometry(), QRect(50, 0, 100, 50));
    container.setContentLayoutMode(ContainerLayoutBottom);
    EXPECT_EQ(view.geometry(), QRect(50, 150, 100, 50));
    container.setContentLayoutMode(ContainerLayoutCenter);
    EXPECT_EQ(view.geometry(), QRect(50, 75, 100, 50));
    view.resize(101, 101);
    container.setContentLayoutMode(ContainerLayoutTop);
    container.setContentLayoutMode(ContainerLayoutCenter);
    EXPECT_EQ(view.geometry(), QRect(49, 49, 101, 101)); // 50 from below is 49 from above
}

TEST_F(ContainerViewTest, AViewAppearsInItsPlace) {
    container.setContentView(&view, ContainerLayoutTop);
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.parentWidget(), &container);
}

TEST_F(ContainerViewTest, AnotherViewTakesThePlaceOfTheFirst) {
    container.setContentView(&view, ContainerLayoutTop);
    container.setContentView(&other);
    EXPECT_EQ(container.contentView(), &other);
    EXPECT_EQ(view.parentWidget(), nullptr);
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(container.contentLayoutMode(), ContainerLayoutTop);
}

TEST_F(ContainerViewTest, NoViewLeavesItEmpty) {
    container.setContentView(&view, ContainerLayoutTop);
    container.setContentView(nullptr, ContainerLayoutFill);
    EXPECT_EQ(container.contentView(), nullptr);
    EXPECT_EQ(container.contentLayoutMode(), ContainerLayoutFill);
    EXPECT_EQ(view.parentWidget(), nullptr);
}

TEST_F(ContainerViewTest, TheSameViewOnlyTakesTheNewMode) {
    container.setContentView(&view, ContainerLayoutTop);
    view.move(7, 7);
    container.setContentView(&view, ContainerLayoutTop);
    EXPECT_EQ(view.pos(), QPoint(7, 7)); // nothing changed, nothing is placed again
    container.setContentView(&view);
    EXPECT_EQ(view.pos(), QPoint(7, 7));
    container.setContentView(&view, ContainerLayoutFill);
    EXPECT_EQ(view.geometry(), container.rect());
}

TEST_F(ContainerViewTest, AResizePlacesTheViewAgain) {
    container.setContentView(&view, ContainerLayoutFill);
    container.resize(300, 120);
    EXPECT_EQ(view.geometry(), QRect(0, 0, 300, 120));
}

TEST_F(ContainerViewTest, AViewThatGoesAwayLeavesItEmpty) {
    auto shortLived = std::make_unique<QWidget>();
    container.setContentView(shortLived.get(), ContainerLayoutFill);
    shortLived.reset();
    container.resize(100, 100);
    EXPECT_EQ(container.contentView(), nullptr);
}

TEST_F(ContainerViewTest, ItsEndLeavesTheViewToItsOwner) {
    auto shortLived = std::make_unique<ContainerView>();
    shortLived->setContentView(&view);
    shortLived.reset();
    EXPECT_EQ(view.parentWidget(), nullptr);
}

} // namespace barquell::test
