// What every back end's overlay panels do, whatever they show. Time is real here.

#include "platform/linux/overlay/LinuxOverlayPanels.h"
#include "platform/simulated/RecordedOverlayPanels.h"
#include "support/Wait.h"

#include <QWidget>

#include <gmock/gmock.h>

namespace barquell::test {

using std::chrono::milliseconds;

template <typename Panels>
class OverlayPanelContractTest : public testing::Test {
protected:
    void fade(int duration) {
        panel->animateOpacity(0, milliseconds(duration), [this] { ++finished; });
    }

    Panels panels;
    std::unique_ptr<OverlayPanel> panel = panels.createPanel();
    int finished = 0;
};

using BackEnds = testing::Types<RecordedOverlayPanels, LinuxOverlayPanels>;
TYPED_TEST_SUITE(OverlayPanelContractTest, BackEnds);

TYPED_TEST(OverlayPanelContractTest, AFadeSaysOnceThatItIsFinished) {
    this->panel->orderFront();
    this->fade(30);
    EXPECT_EQ(this->finished, 0);
    ASSERT_TRUE(waitFor([this] { return this->finished > 0; }));
    runFor(milliseconds(60));
    EXPECT_EQ(this->finished, 1);
}

TYPED_TEST(OverlayPanelContractTest, AStoppedFadeIsFinishedAtOnceAndNotAgain) {
    this->fade(30);
    this->panel->stopAnimations();
    EXPECT_EQ(this->finished, 1);
    this->panel->stopAnimations();
    runFor(milliseconds(60));
    EXPECT_EQ(this->finished, 1);
}

TYPED_TEST(OverlayPanelContractTest, ANewFadeEndsTheOldOne) {
    this->fade(1000);
    this->fade(10);
    EXPECT_EQ(this->finished, 1);
    ASSERT_TRUE(waitFor([this] { return this->finished == 2; }));
}

TYPED_TEST(OverlayPanelContractTest, AFadeMayStartAnotherWhenItIsFinished) {
    this->panel->animateOpacity(0, milliseconds(10), [this] { this->fade(10); });
    ASSERT_TRUE(waitFor([this] { return this->finished == 1; }));
}

TYPED_TEST(OverlayPanelContractTest, ThePanelsEndEndsTheFadeInSilence) {
    this->fade(10);
    this->panel.reset();
    runFor(milliseconds(40));
    EXPECT_EQ(this->finished, 0);
}

TYPED_TEST(OverlayPanelContractTest, ClosingEndsTheFadeInSilence) {
    this->panel->orderFront();
    this->fade(10);
    this->panel->close();
    runFor(milliseconds(40));
    EXPECT_EQ(this->finished, 0);
    this->fade(10);
    ASSERT_TRUE(waitFor([this] { return this->finished == 1; }));
}

TYPED_TEST(OverlayPanelContractTest, TheViewStaysItsOwners) {
    QWidget view;
    view.resize(112, 80);
    this->panel->setContent(&view);
    this->panel->setFrame(QRectF(10, 10, 112, 80));
    this->panel->orderFront();
    this->panel.reset();
    EXPECT_EQ(view.parentWidget(), nullptr);
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(view.size(), QSize(112, 80));
}

TYPED_TEST(OverlayPanelContractTest, AViewMayGoAwayWhileItIsShown) {
    auto view = std::make_unique<QWidget>();
    this->panel->setContent(view.get());
    this->panel->orderFront();
    view.reset();
    this->panel->setContent(nullptr);
    this->panel->setFrame(QRectF());
    this->panel->orderFront();
    this->panel->orderOut();
}

TYPED_TEST(OverlayPanelContractTest, AClosedPanelCanBeShownAgain) {
    QWidget view;
    this->panel->setContent(&view);
    this->panel->orderFront();
    this->panel->close();
    this->panel->close();
    this->panel->orderFront();
    this->panel->orderOut();
}

TYPED_TEST(OverlayPanelContractTest, TheMainScreenIsAWholeScreen) {
    EXPECT_GT(this->panels.mainScreenFrame().width(), 0);
    EXPECT_EQ(this->panels.mainScreenFrame().topLeft(), QPointF(0, 0)); // there is no other screen here
}

} // namespace barquell::test
