#include "HUDFixture.h"

#include "platform/Platform.h"

namespace barquell::test {

using testing::ElementsAre;
using testing::IsEmpty;

class TouchBarHUDTest : public HUDFixture {};

// What is shown, and when.

TEST_F(TouchBarHUDTest, AtLaunchWithBlockingInForceTheOffLookIsShown) {
    TouchBarInterceptor::subscribeToUserDefaults();
    makeHUD();
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, &offSmall);
}

TEST_F(TouchBarHUDTest, AtLaunchWithoutBlockingNothingIsShown) {
    makeHUD();
    EXPECT_THAT(panels.journal, ElementsAre("create"));
}

TEST_F(TouchBarHUDTest, SwitchingBlockingShowsTheNewState) {
    makeHiddenHUD();
    set("Enabled", false);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, &onSmall);
    set("Enabled", true);
    EXPECT_EQ(panel.content, &offSmall);
}

TEST_F(TouchBarHUDTest, PauseKeysShowTheirStateWhereTheSettingWantsIt) {
    makeHiddenHUD();
    hold(kFlagFn);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, &onSmall);
}

TEST_F(TouchBarHUDTest, PauseKeysShowNothingWithTheirSettingOff) {
    set("ShowHUDPauseKeys", false);
    makeHiddenHUD();
    hold(kFlagFn);
    EXPECT_FALSE(TouchBarInterceptor::effectivelyEnabled());
    hold(0);
    EXPECT_THAT(panels.journal, IsEmpty());
}

TEST_F(TouchBarHUDTest, PauseFlagsShowTheirStateWhereTheSettingWantsIt) {
    makeHiddenHUD();
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, &onSmall);
}

TEST_F(TouchBarHUDTest, PauseFlagsShowNothingWithTheirSettingOff) {
    makeHiddenHUD();
    set("ShowHUDFrontApp", false);
    EXPECT_THAT(panels.journal, IsEmpty()); // the setting alone shows nothing either
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, true);
    EXPECT_THAT(panels.journal, IsEmpty());
    hold(kFlagFn);
    set("ShowHUDFrontApp", true);
    TouchBarInterceptor::updatePauseFlags(PauseFlagBypassedApp, false);
    hold(0);
    EXPECT_FALSE(panels.journal.empty());
}

TEST_F(TouchBarHUDTest, ASettingSwitchesItsOwnSourceAlone) {
    makeHiddenHUD();
    set("ShowHUDPauseKeys", false);
    post(1);
    EXPECT_THAT(panels.journal, IsEmpty());
    post(2);
    EXPECT_TRUE(isShown());
}

TEST_F(TouchBarHUDTest, TheTapIsShownWhateverTheSettings) {
    set("ShowHUDPauseKeys", false);
    set("ShowHUDFrontApp", false);
    makeHiddenHUD();
    set("Enabled", false);
    EXPECT_TRUE(isShown());
}

TEST_F(TouchBarHUDTest, WithoutASourceItCountsAsTheTap) {
    set("ShowHUDPauseKeys", false);
    set("ShowHUDFrontApp", false);
    makeHiddenHUD();
    NotificationCenter::defaultCenter().post({touchBarStateChangedNotification(), nullptr, {}});
    EXPECT_TRUE(isShown());
}

TEST_F(TouchBarHUDTest, OtherSourcesShowNothing) {
    makeHiddenHUD();
    for (const int source : {3, 4, 31, 32, 64, -1}) {
        post(source);
    }
    EXPECT_THAT(panels.journal, IsEmpty());
}

TEST_F(TouchBarHUDTest, ASourceWrapsAroundAtThirtyTwo) {
    makeHiddenHUD();
    set("ShowHUDFrontApp", false);
    post(34);
    EXPECT_THAT(panels.journal, IsEmpty());
    post(33);
    EXPECT_TRUE(isShown());
}

TEST_F(TouchBarHUDTest, TheStateIsReadAfreshAndNotTakenFromTheNotification) {
    makeHiddenHUD();
    post(0);
    EXPECT_EQ(panel.content, &offSmall);
}

// Where.

TEST_F(TouchBarHUDTest, TheFrameFollowsTheLocationAndTheScreen) {
    panels.screen = QRectF(1440, 100, 1000, 600);
    TouchBarInterceptor::subscribeToUserDefaults();
    makeHUD();
    EXPECT_EQ(panel.frame, QRectF(2318, 610, 112, 80));
}

TEST_F(TouchBarHUDTest, ANewLocationIsShownAtOnceWithTheLookOfNow) {
    makeHiddenHUD();
    set("HUDLocation", 4);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, &offSmall);
    EXPECT_EQ(panel.frame, QRectF(10, 10, 112, 80));
    set("Enabled", false);
    set("HUDLocation", 0);
    EXPECT_EQ(panel.content, &onLarge);
    EXPECT_EQ(panel.frame, QRectF(600, 140, 240, 200));
}

TEST_F(TouchBarHUDTest, ALocationSetBeforeTheInterfaceFileIsWiredShowsNothing) {
    TouchBarInterceptor::subscribeToUserDefaults();
    hud = std::make_unique<TouchBarHUDController>();
    set("HUDLocation", 2);
    EXPECT_THAT(panels.journal, IsEmpty());
}

TEST_F(TouchBarHUDTest, LocationsOutOfRangeAreTheCentreWithTheSmallView) {
    makeHiddenHUD();
    for (const int location : {5, -1}) {
        set("HUDLocation", location);
        EXPECT_EQ(panel.content, &offSmall);
        EXPECT_EQ(panel.frame, QRectF(664, 200, 112, 80));
    }
}

TEST_F(TouchBarHUDTest, ALocationOfAnotherTypeReadsAsANumber) {
    makeHiddenHUD();
    set("HUDLocation", QStringLiteral("3rd"));
    EXPECT_EQ(panel.frame.topLeft(), QPointF(10, 810));
    set("HUDLocation", QVariantList{1});
    EXPECT_EQ(panel.content, &offLarge);
}

// How long.

TEST_F(TouchBarHUDTest, ItIsVisibleForASecondAndFadesForAHalf) {
    makeHiddenHUD();
    set("Enabled", false);
    advance(999);
    EXPECT_TRUE(isShown());
    advance(1);
    EXPECT_TRUE(panel.fading);
    advance(499);
    EXPECT_TRUE(panel.fading);
    EXPECT_TRUE(panel.visible);
    advance(1);
    EXPECT_EQ(panel.opacity, 0);
    EXPECT_FALSE(panel.visible);
}

TEST_F(TouchBarHUDTest, AShowingIsTheseCallsInThisOrder) {
    makeHiddenHUD();
    set("Enabled", false);
    EXPECT_THAT(panels.journal, ElementsAre("content", "stop", "frame", "opacity 1", "front"));
    panels.journal.clear();
    advance(1500);
    EXPECT_THAT(panels.journal, ElementsAre("fade to 0", "out"));
}

TEST_F(TouchBarHUDTest, AChangeWithinTheSecondStartsItAnew) {
    makeHiddenHUD();
    set("Enabled", false);
    advance(800);
    set("Enabled", true);
    advance(999);
    EXPECT_TRUE(isShown()); // 1.0 s after the first change has long passed
    advance(1);
    EXPECT_TRUE(panel.fading);
    advance(500);
    EXPECT_FALSE(panel.visible);
}

TEST_F(TouchBarHUDTest, ADisplayDuringTheFadeIsFullyVisibleAndOutlivesTheOldFade) {
    makeHiddenHUD();
    set("Enabled", false);
    advance(1300);
    EXPECT_TRUE(panel.fading);
    panels.journal.clear();
    set("Enabled", true);
    EXPECT_TRUE(isShown());
    advance(999); // the old fade would have ended on the way
    EXPECT_TRUE(isShown());
    EXPECT_THAT(panels.journal, ElementsAre("content", "stop", "frame", "opacity 1", "front"));
    advance(501);
    EXPECT_FALSE(panel.visible);
}

TEST_F(TouchBarHUDTest, ANotificationThatIsNotShownDoesNotProlongTheDisplay) {
    makeHiddenHUD();
    set("Enabled", false);
    advance(900);
    post(3);
    advance(100);
    EXPECT_TRUE(panel.fading);
}

// Its end.

TEST_F(TouchBarHUDTest, ClosingHidesItAndEndsItsTimer) {
    makeHiddenHUD();
    set("Enabled", false);
    panels.journal.clear();
    hud->closeWindow();
    EXPECT_FALSE(panel.visible);
    advance(10000);
    EXPECT_THAT(panels.journal, ElementsAre("close"));
}

TEST_F(TouchBarHUDTest, AClosedHUDCanBeShownAgain) {
    makeHiddenHUD();
    hud->closeWindow();
    set("Enabled", false);
    EXPECT_TRUE(isShown());
}

TEST_F(TouchBarHUDTest, ItsDestructionClosesItAndNothingIsHeardAnyMore) {
    makeHiddenHUD();
    set("Enabled", false);
    panels.journal.clear();
    hud.reset();
    EXPECT_FALSE(panel.visible);
    EXPECT_THAT(panels.journal, ElementsAre("close", "destroy"));
    set("Enabled", true);
    set("HUDLocation", 3);
    advance(10000);
    EXPECT_THAT(panels.journal, ElementsAre("close", "destroy"));
}

TEST_F(TouchBarHUDTest, ItsDestructionDuringTheFadeEndsTheFade) {
    makeHiddenHUD();
    set("Enabled", false);
    advance(1200);
    hud.reset();
    panels.journal.clear();
    advance(10000);
    EXPECT_THAT(panels.journal, IsEmpty());
}

// What is missing breaks nothing.

TEST_F(TouchBarHUDTest, WithoutAVariantThePanelIsEmpty) {
    makeHiddenHUD();
    hud->setOnVariant(nullptr);
    set("Enabled", false);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, nullptr);
    EXPECT_EQ(panel.frame, QRectF(1430, 890, 0, 0));
}

TEST_F(TouchBarHUDTest, WithoutAViewThePanelIsEmpty) {
    makeHiddenHUD();
    on.setSmallView(nullptr);
    set("Enabled", false);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.content, nullptr);
}

TEST_F(TouchBarHUDTest, AVariantWithoutViewsAwakes) {
    TouchBarHUDVariant empty;
    empty.awakeFromNib();
    EXPECT_EQ(empty.largeView(), nullptr);
}

TEST_F(TouchBarHUDTest, AVariantOrAViewThatGoesAwayIsForgotten) {
    makeHiddenHUD();
    {
        TouchBarHUDVariant passing;
        HUDPlate view;
        passing.setSmallView(&view);
        hud->setOnVariant(&passing);
        set("Enabled", false);
        EXPECT_EQ(panel.content, &view);
    }
    post(0);
    EXPECT_EQ(panel.content, nullptr);
}

TEST_F(TouchBarHUDTest, WithoutAScreenItStandsRelativeToTheZeroRectangle) {
    makeHiddenHUD();
    panels.screen = QRectF();
    set("Enabled", false);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(panel.frame, QRectF(-122, -90, 112, 80));
}

TEST_F(TouchBarHUDTest, WithoutOverlayPanelsNothingIsShownAndNothingBreaks) {
    Platform bare = platform();
    bare.overlayPanels = nullptr;
    installPlatform(bare);
    TouchBarInterceptor::subscribeToUserDefaults();
    makeHUD();
    set("Enabled", false);
    set("HUDLocation", 3);
    advance(10000);
    hud->closeWindow();
    EXPECT_EQ(hud->window(), nullptr);
    EXPECT_THAT(panels.journal, IsEmpty());
}

} // namespace barquell::test
