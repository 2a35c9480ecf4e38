// What every back end's overlay panels do, whatever they show. Time is real here.

#include "platform/OverlayPanel.h"
#include "contract/ContractPlace.h"
#include "support/Wait.h"

#include <QWidget>

namespace barquell::test {

using std::chrono::milliseconds;

namespace {

class OverlayPanelContract : public Contract {
protected:
    void fade(int duration) {
        panel->animateOpacity(0, milliseconds(duration), [this] { ++finished; });
    }

    OverlayPanels &panels = *pieces.overlayPanels;
    std::unique_ptr<OverlayPanel> panel = panels.createPanel();
    int finished = 0;
};

TEST_P(OverlayPanelContract, AFadeSaysOnceThatItIsFinished) {
    panel->orderFront();
    fade(30);
    EXPECT_EQ(finished, 0);
    ASSERT_TRUE(waitFor([this] { return finished > 0; }));
    runFor(milliseconds(60));
    EXPECT_EQ(finished, 1);
}

TEST_P(OverlayPanelContract, AStoppedFadeIsFinishedAtOnceAndNotAgain) {
    fade(30);
    panel->stopAnimations();
    EXPECT_EQ(finished, 1);
    panel->stopAnimations();
    runFor(milliseconds(60));
    EXPECT_EQ(finished, 1);
}

TEST_P(OverlayPanelContract, ANewFadeEndsTheOldOne) {
    fade(1000);
    fade(10);
    EXPECT_EQ(finished, 1);
    ASSERT_TRUE(waitFor([this] { return finished == 2; }));
}

TEST_P(OverlayPanelContract, AFadeMayStartAnotherWhenItIsFinished) {
    panel->animateOpacity(0, milliseconds(10), [this] { fade(10); });
    ASSERT_TRUE(waitFor([this] { return finished == 1; }));
}

TEST_P(OverlayPanelContract, ThePanelsEndEndsTheFadeInSilence) {
    fade(10);
    panel.reset();
    runFor(milliseconds(40));
    EXPECT_EQ(finished, 0);
}

TEST_P(OverlayPanelContract, ClosingEndsTheFadeInSilence) {
    panel->orderFront();
    fade(10);
    panel->close();
    runFor(milliseconds(40));
    EXPECT_EQ(finished, 0);
    fade(10);
    ASSERT_TRUE(waitFor([this] { return finished == 1; }));
}

TEST_P(OverlayPanelContract, TheViewStaysItsOwners) {
    QWidget view;
    view.resize(112, 80);
    panel->setContent(&view);
    panel->setFrame(QRectF(10, 10, 112, 80));
    panel->orderFront();
    panel.reset();
    EXPECT_EQ(view.parentWidget(), nullptr);
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(view.size(), QSize(112, 80));
}

TEST_P(OverlayPanelContract, AViewMayGoAwayWhileItIsShown) {
    auto view = std::make_unique<QWidget>();
    panel->setContent(view.get());
    panel->orderFront();
    view.reset();
    panel->setContent(nullptr);
    panel->setFrame(QRectF());
    panel->orderFront();
    panel->orderOut();
    fade(10); // it is as good as new
    EXPECT_TRUE(waitFor([this] { return finished == 1; }));
}

TEST_P(OverlayPanelContract, AClosedPanelCanBeShownAgain) {
    QWidget view;
    panel->setContent(&view);
    panel->orderFront();
    panel->close();
    panel->close();
    panel->orderFront();
    fade(10);
    EXPECT_TRUE(waitFor([this] { return finished == 1; }));
    panel->orderOut();
}

TEST_P(OverlayPanelContract, TheMainScreenIsAWholeScreen) {
    EXPECT_GT(panels.mainScreenFrame().width(), 0);
    EXPECT_EQ(panels.mainScreenFrame().topLeft(), QPointF(0, 0)); // there is no other screen here
}

ON_EVERY_PLACE(OverlayPanelContract);

} // namespace
} // namespace barquell::test
