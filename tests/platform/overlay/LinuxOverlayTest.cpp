#include "platform/linux/overlay/LinuxOverlayPanels.h"
#include "platform/linux/overlay/OverlayWindow.h"
#include "support/Wait.h"

#include <QApplication>
#include <QScreen>

#include <gmock/gmock.h>

namespace barquell::test {

namespace {

OverlayWindow *overlayWindow() {
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<OverlayWindow *>(widget)) {
            return window;
        }
    }
    return nullptr;
}

class LinuxOverlayTest : public testing::Test {
protected:
    LinuxOverlayTest() { view.resize(112, 80); }

    QWidget view;
    LinuxOverlayPanels panels;
    std::unique_ptr<OverlayPanel> panel = panels.createPanel();
    OverlayWindow *window = overlayWindow();
};

} // namespace

TEST(TurnedOverTest, YGrowsFromTheLowerEdgeOfThePrimaryScreen) {
    const QRectF primary(0, 0, 1440, 900);
    EXPECT_EQ(turnedOver(QRectF(0, 0, 1440, 900), primary), QRectF(0, 0, 1440, 900));
    EXPECT_EQ(turnedOver(QRectF(10, 10, 112, 80), primary), QRectF(10, 810, 112, 80));
    EXPECT_EQ(turnedOver(QRectF(1440, 100, 800, 600), primary), QRectF(1440, 200, 800, 600)); // beside it
    EXPECT_EQ(turnedOver(QRectF(0, -600, 800, 600), primary), QRectF(0, 900, 800, 600));      // above it
}

TEST(TurnedOverTest, TwiceIsAsBefore) {
    const QRectF primary(100, 50, 1440, 900);
    const QRectF rectangle(12.5, -80.25, 112, 80);
    EXPECT_EQ(turnedOver(turnedOver(rectangle, primary), primary), rectangle);
}

TEST_F(LinuxOverlayTest, TheWindowStandsWhereTheFrameSaysTurnedOverAndRoundedOnce) {
    const int height = QGuiApplication::primaryScreen()->geometry().height();
    panel->setContent(&view);
    panel->setFrame(QRectF(30.4, 20.6, 112, 80));
    panel->orderFront();
    EXPECT_EQ(window->geometry(), QRect(30, qRound(height - 20.6 - 80), 112, 80));
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(view.parentWidget(), window);
    EXPECT_TRUE(view.isVisible());
}

TEST_F(LinuxOverlayTest, TheWindowTakesNeitherClicksNorTheFocusNorTheProgramsEnd) {
    EXPECT_TRUE(window->windowFlags().testFlags(Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus |
                                                Qt::BypassWindowManagerHint | Qt::FramelessWindowHint));
    EXPECT_TRUE(window->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(window->testAttribute(Qt::WA_QuitOnClose));
    EXPECT_EQ(window->focusPolicy(), Qt::NoFocus);
}

TEST_F(LinuxOverlayTest, AnotherViewTakesThePlaceOfTheFirst) {
    QWidget other;
    panel->setContent(&view);
    panel->orderFront();
    panel->setContent(&other);
    EXPECT_EQ(view.parentWidget(), nullptr);
    EXPECT_FALSE(view.isVisible());
    EXPECT_TRUE(other.isVisible());
}

TEST_F(LinuxOverlayTest, AnEmptyPanelIsNotSeen) {
    panel->setContent(&view);
    panel->orderFront();
    panel->setContent(nullptr);
    panel->orderFront();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(LinuxOverlayTest, AFadeLeadsToItsOpacityAndHidesNothingByItself) {
    panel->setContent(&view);
    panel->setOpacity(1);
    panel->orderFront();
    bool finished = false;
    panel->animateOpacity(0, std::chrono::milliseconds(40), [&] { finished = true; });
    ASSERT_TRUE(waitFor([&] { return window->windowOpacity() < 1; }));
    ASSERT_TRUE(waitFor([&] { return finished; }));
    EXPECT_EQ(window->windowOpacity(), 0);
    EXPECT_TRUE(window->isVisible());
}

} // namespace barquell::test
