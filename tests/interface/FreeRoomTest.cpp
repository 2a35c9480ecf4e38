#include "foundation/interface/FreeRoom.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

class FreeRoomTest : public testing::Test {
protected:
    FreeRoomTest() { keepClear(bar); }

    QRect room() const { return freeRoom(screen); }

    void showAt(int y) {
        bar.setGeometry(whole.left() + 10, y, 300, 50);
        bar.show();
    }

    QScreen &screen = *QGuiApplication::primaryScreen();
    QRect whole = screen.availableGeometry();
    QWidget bar;
};

} // namespace

TEST_F(FreeRoomTest, IsTheWholeWithoutAWindowToKeepClear) {
    EXPECT_EQ(room(), whole);
}

TEST_F(FreeRoomTest, EndsAboveAWindowToKeepClear) {
    showAt(whole.bottom() - 60);
    const QRect free = room();
    EXPECT_EQ(free.topLeft(), whole.topLeft());
    EXPECT_EQ(free.width(), whole.width());
    EXPECT_LE(free.bottom(), bar.frameGeometry().top());
    EXPECT_GE(free.bottom(), bar.frameGeometry().top() - 60);
}

TEST_F(FreeRoomTest, IsTheWholeOnceThatIsHidden) {
    showAt(whole.bottom() - 60);
    bar.hide();
    EXPECT_EQ(room(), whole);
}

TEST_F(FreeRoomTest, IsTheWholeOnceThatIsMinimized) {
    showAt(whole.bottom() - 60);
    bar.setWindowState(Qt::WindowMinimized);
    ASSERT_TRUE(bar.isVisible()); // as Qt has it
    EXPECT_EQ(room(), whole);
}

TEST_F(FreeRoomTest, IsTheWholeWhereTheUserMovedItUp) {
    showAt(whole.top() + 60);
    EXPECT_EQ(room(), whole);
}

TEST_F(FreeRoomTest, KeepsNoOtherWindowClear) {
    QWidget other;
    other.setGeometry(0, whole.bottom() - 60, 100, 50);
    other.show();
    EXPECT_EQ(room(), whole);
}

} // namespace barquell::test
