#pragma once

#include "blocking/TouchBarInterceptor.h"
#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "menubar/hud/TouchBarHUDController.h"
#include "support/LogCapture.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell::test {

/// A HUD on a scripted place; blocking is off until a test starts it.
class HUDFixture : public testing::Test {
protected:
    HUDFixture() {
        here.loop.runPending();
        UserDefaults::standard().registerDefaults({{QStringLiteral("Enabled"), true},
                                                   {QStringLiteral("PauseKeyAllowed"), true},
                                                   {QStringLiteral("PauseKeyFn"), true},
                                                   {QStringLiteral("HUDLocation"), 1},
                                                   {QStringLiteral("ShowHUDPauseKeys"), true},
                                                   {QStringLiteral("ShowHUDFrontApp"), true}});
        for (HUDPlate *large : {&onLarge, &offLarge}) {
            large->resize(240, 200);
        }
        for (HUDPlate *small : {&onSmall, &offSmall}) {
            small->resize(112, 80);
        }
        on.setLargeView(&onLarge);
        on.setSmallView(&onSmall);
        off.setLargeView(&offLarge);
        off.setSmallView(&offSmall);
    }

    static void set(const char *key, const QVariant &value) {
        UserDefaults::standard().setObject(value, QString::fromLatin1(key));
    }

    /// As the loader of interface files makes it.
    void makeHUD() {
        hud = std::make_unique<TouchBarHUDController>();
        hud->setOnVariant(&on);
        hud->setOffVariant(&off);
        on.awakeFromNib();
        off.awakeFromNib();
        hud->awakeFromNib();
    }

    /// A HUD with blocking in force, whose first showing has passed.
    void makeHiddenHUD() {
        TouchBarInterceptor::subscribeToUserDefaults();
        makeHUD();
        advance(10000);
        ASSERT_FALSE(panel.visible);
        panels.journal.clear();
    }

    void hold(ModifierFlags flags) {
        here.platform.modifiers.flags = flags;
        ScriptedEvent event(EventType::FlagsChanged, flags);
        EXPECT_TRUE(here.platform.taps.deliver(event));
    }

    static void post(const QVariant &source) {
        NotificationCenter::defaultCenter().post(
            {touchBarStateChangedNotification(), nullptr, {{QStringLiteral("source"), source}}});
    }

    void advance(int milliseconds) { here.loop.advanceBy(std::chrono::milliseconds(milliseconds)); }

    /// The HUD is there and fully visible.
    bool isShown() const { return panel.visible && panel.opacity == 1 && !panel.fading; }

    Place &here = place();
    RecordedOverlayPanels &panels = here.platform.overlayPanels;
    RecordedOverlayPanels::State &panel = panels.panel;
    LogCapture log;
    HUDPlate onLarge;
    HUDPlate onSmall;
    HUDPlate offLarge;
    HUDPlate offSmall;
    TouchBarHUDVariant on;
    TouchBarHUDVariant off;
    std::unique_ptr<TouchBarHUDController> hud;
};

} // namespace barquell::test
