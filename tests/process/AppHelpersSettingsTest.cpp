// How the helpers set themselves up, and the settings that they follow.

#include "process/AppHelpersFixture.h"

#include "foundation/Values.h"

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = LoginItemState::Kind;

class AppHelpersSettingsTest : public AppHelpersFixture {
protected:
    void expectAdopted(const LoginItemState &known, const QVariant &expected) {
        loginItem.known = known;
        AppHelpers::isBackground();
        EXPECT_TRUE(sameValue(stored("LaunchAtStart"), expected));
        EXPECT_THAT(loginItem.journal, IsEmpty()); // nothing was switched
        EXPECT_EQ(loginItem.askedFor, QStringLiteral("com.vexolith.barquell.launcher"));
    }
};

TEST_F(AppHelpersSettingsTest, RegistersTheOptionalDockIconAlone) {
    AppHelpers::isBackground();
    EXPECT_TRUE(UserDefaults::standard().boolForKey(QStringLiteral("OptionalDockIcon")));
    EXPECT_FALSE(UserDefaults::standard().objectForKey(QStringLiteral("LaunchAtStart")).isValid());
    EXPECT_THAT(UserDefaults::standard().persistentDomain().keys(), IsEmpty());
}

TEST_F(AppHelpersSettingsTest, AProcessThatIsNotRegularBeginsInTheBackground) {
    life.policy = ActivationPolicy::Accessory;
    EXPECT_TRUE(AppHelpers::isBackground());
    here.loop.advanceBy(std::chrono::seconds(1));
    EXPECT_THAT(life.journal, IsEmpty());
}

TEST_F(AppHelpersSettingsTest, ARegularProcessWithoutWindowsLeavesTheForegroundAtStart) {
    life.policy = ActivationPolicy::Regular;
    EXPECT_TRUE(AppHelpers::isBackground()); // on its way
    EXPECT_THAT(life.journal, IsEmpty());
    here.loop.advanceBy(std::chrono::milliseconds(100));
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(AppHelpersSettingsTest, ARegularProcessWhoseDockIconIsNotOptionalStays) {
    set("OptionalDockIcon", false);
    life.policy = ActivationPolicy::Regular;
    EXPECT_FALSE(AppHelpers::isBackground());
    here.loop.advanceBy(std::chrono::seconds(1));
    EXPECT_THAT(life.journal, IsEmpty());
}

TEST_F(AppHelpersSettingsTest, AnUnknownLoginItemLeavesTheSettingAsItIs) {
    set("LaunchAtStart", true);
    expectAdopted({Kind::Unknown, std::nullopt}, true);
}

TEST_F(AppHelpersSettingsTest, ALoginItemThatIsOffSwitchesTheSettingOff) {
    set("LaunchAtStart", true);
    expectAdopted({Kind::Off, std::nullopt}, false);
}

TEST_F(AppHelpersSettingsTest, ALoginItemWithoutAValueLeavesTheSettingAsItIs) {
    set("LaunchAtStart", true);
    expectAdopted({Kind::Found, std::nullopt}, true);
}

TEST_F(AppHelpersSettingsTest, ALoginItemWithAValueGivesItToTheSetting) {
    expectAdopted({Kind::Found, true}, true);
}

TEST_F(AppHelpersSettingsTest, ALoginItemWhoseValueIsFalseSwitchesTheSettingOff) {
    set("LaunchAtStart", true);
    expectAdopted({Kind::Found, false}, false);
}

TEST_F(AppHelpersSettingsTest, EveryChangeSwitchesTheLoginItem) {
    begin();
    set("LaunchAtStart", true);
    set("LaunchAtStart", QStringLiteral("no"));
    UserDefaults::standard().removeObjectForKey(QStringLiteral("LaunchAtStart"));
    EXPECT_THAT(loginItem.journal,
                ElementsAre("enable com.vexolith.barquell.launcher", "disable com.vexolith.barquell.launcher",
                            "disable com.vexolith.barquell.launcher"));
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(AppHelpersSettingsTest, ARefusedLoginItemIsSaidAndTheSettingKeepsTheUsersValue) {
    begin();
    loginItem.refuses = true;
    set("LaunchAtStart", true);
    set("LaunchAtStart", false);
    EXPECT_THAT(
        log.lines,
        ElementsAre(QStringLiteral("SMLoginItemSetEnabled(com.vexolith.barquell.launcher, YES) failed"),
                    QStringLiteral("SMLoginItemSetEnabled(com.vexolith.barquell.launcher, NO) failed")));
    EXPECT_TRUE(sameValue(stored("LaunchAtStart"), false));
}

TEST_F(AppHelpersSettingsTest, SwitchingTheOptionalDockIconOffComesToTheForegroundWithoutAWindow) {
    begin();
    set("OptionalDockIcon", false);
    EXPECT_FALSE(AppHelpers::isBackground());
    EXPECT_THAT(life.journal, IsEmpty()); // later, from the run loop
    here.loop.runPending();
    EXPECT_THAT(life.journal, ElementsAre("bring first process to front", "become regular", "activate"));
    EXPECT_THAT(QApplication::topLevelWidgets(), IsEmpty());
}

TEST_F(AppHelpersSettingsTest, SwitchingTheOptionalDockIconOnLeavesTheForegroundAfterATenthOfASecond) {
    begin();
    set("OptionalDockIcon", false);
    here.loop.runPending();
    forget();
    set("OptionalDockIcon", true);
    EXPECT_TRUE(AppHelpers::isBackground());
    here.loop.advanceBy(std::chrono::milliseconds(99));
    EXPECT_THAT(life.journal, IsEmpty());
    here.loop.advanceBy(std::chrono::milliseconds(1));
    EXPECT_THAT(life.journal, ElementsAre("become accessory"));
}

TEST_F(AppHelpersSettingsTest, WritingTheOptionalDockIconAsItWasDoesNothing) {
    begin();
    set("OptionalDockIcon", true);
    set("OptionalDockIcon", QStringLiteral("yes"));
    here.loop.advanceBy(std::chrono::seconds(1));
    EXPECT_THAT(life.journal, IsEmpty());
}

TEST_F(AppHelpersSettingsTest, ValuesOfTheWrongTypeCountAsOff) {
    begin();
    set("OptionalDockIcon", QVariantList{true});
    set("LaunchAtStart", QVariantMap{{QStringLiteral("OnDemand"), true}});
    EXPECT_FALSE(AppHelpers::isBackground());
    EXPECT_THAT(loginItem.journal, ElementsAre("disable com.vexolith.barquell.launcher"));
}

TEST_F(AppHelpersSettingsTest, RemovingTheOptionalDockIconReturnsToTheRegisteredDefault) {
    begin();
    set("OptionalDockIcon", false);
    UserDefaults::standard().removeObjectForKey(QStringLiteral("OptionalDockIcon"));
    EXPECT_TRUE(AppHelpers::isBackground());
}

} // namespace
} // namespace barquell::test
