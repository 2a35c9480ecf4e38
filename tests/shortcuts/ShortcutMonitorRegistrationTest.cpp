#include "MonitorFixture.h"

namespace barquell::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ShortcutRegistrationTest : public MonitorFixture {};

} // namespace

TEST_F(ShortcutRegistrationTest, NoHotKeyIsRegisteredUntilThereIsAnAction) {
    store(f5());
    ShortcutMonitor *monitor = ShortcutMonitor::monitorWithName(name());
    EXPECT_THAT(hotKeys().journal, IsEmpty());
    monitor->setAction("press:");
    EXPECT_THAT(hotKeys().journal, ElementsAre("install", "register 96 256 1"));
}

TEST_F(ShortcutRegistrationTest, TheTargetIsNoConditionAndChangingItNoReason) {
    store(f5());
    ShortcutMonitor *monitor = ShortcutMonitor::monitorWithName(name());
    monitor->setTarget(nullptr, "press:");
    EXPECT_EQ(hotKeys().registeredCount(), 1U);
    hotKeys().journal.clear();
    monitor->setTarget(&target);
    monitor->setTarget(&target, "press:");
    EXPECT_THAT(hotKeys().journal, IsEmpty());
}

TEST_F(ShortcutRegistrationTest, AnotherActionKeepsTheHotKeyAndNoneGivesItBack) {
    ShortcutMonitor &monitor = registered();
    monitor.addChangeListener(&listener, false);
    monitor.setAction("other");
    EXPECT_THAT(hotKeys().journal, IsEmpty());
    monitor.setAction({});
    EXPECT_THAT(hotKeys().journal, ElementsAre("unregister 1"));
    EXPECT_EQ(listener.changes, 0);
}

TEST_F(ShortcutRegistrationTest, EachModifierBecomesItsBitOfTheHotKey) {
    registered();
    defaults().setObject(QVariantList{0, 0x20000}, name());
    defaults().setObject(QVariantList{0, 0x10000}, name());
    defaults().setObject(QVariantList{0, 0x80000}, name());
    defaults().setObject(QVariantList{0, 0x40000}, name());
    EXPECT_THAT(hotKeys().journal,
                ElementsAre("unregister 1", "register 0 512 1", "unregister 1", "register 0 1024 1",
                            "unregister 1", "register 0 2048 1", "unregister 1", "register 0 4096 1"));
}

TEST_F(ShortcutRegistrationTest, TheClassSwitchGivesAllHotKeysBackAndTakesThemAgainWithoutAWord) {
    registered().addChangeListener(&listener, false);
    const QString other = QStringLiteral("Sound");
    defaults().setObject(QVariantList{97, 0}, other);
    defaults().setObject(true, other + QStringLiteral("Enabled"));
    ShortcutMonitor::monitorWithName(other)->setAction("press:");
    hotKeys().journal.clear();
    EXPECT_TRUE(ShortcutMonitor::cls().enabled());
    ShortcutMonitor::setEnabled(false);
    ShortcutMonitor::setEnabled(false);
    EXPECT_FALSE(ShortcutMonitor::cls().enabled());
    EXPECT_EQ(hotKeys().registeredCount(), 0U);
    ShortcutMonitor::setEnabled(true);
    EXPECT_THAT(hotKeys().journal,
                ElementsAre("unregister 1", "unregister 2", "register 96 256 1", "register 97 0 2"));
    EXPECT_EQ(listener.changes, 0);
}

TEST_F(ShortcutRegistrationTest, NothingIsRegisteredWhileTheClassSwitchIsOff) {
    ShortcutMonitor::setEnabled(false);
    store(f5());
    ShortcutMonitor::monitorWithName(name())->setTarget(&target, "press:");
    EXPECT_THAT(hotKeys().journal, IsEmpty());
}

TEST_F(ShortcutRegistrationTest, TheSecondMonitorWithTheSameShortcutIsRefusedAndLogged) {
    registered();
    const QString other = QStringLiteral("Sound");
    defaults().setObject(f5(), other);
    defaults().setObject(true, other + QStringLiteral("Enabled"));
    ShortcutMonitor::monitorWithName(other)->setAction("press:");
    EXPECT_EQ(hotKeys().registeredCount(), 1U);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("RegisterEventHotKey failed: -9878")));
}

TEST_F(ShortcutRegistrationTest, ARefusedHotKeyIsTriedAgainWithTheNextChange) {
    hotKeys().registerStatus = -9878;
    registered();
    EXPECT_EQ(hotKeys().registeredCount(), 0U);
    hotKeys().registerStatus = 0;
    defaults().setObject(f5(), name());
    EXPECT_EQ(hotKeys().registeredCount(), 1U);
}

TEST_F(ShortcutRegistrationTest, AHandlerThatCannotBeInstalledIsLoggedAndTriedAgain) {
    hotKeys().installStatus = -5;
    registered();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("InstallEventHandler failed: -5")));
    EXPECT_EQ(hotKeys().registeredCount(), 0U);
    hotKeys().installStatus = 0;
    defaults().setObject(f5(), name());
    EXPECT_THAT(hotKeys().journal, ElementsAre("install", "register 96 256 1"));
}

TEST_F(ShortcutRegistrationTest, TheHandlerIsInstalledOnce) {
    ShortcutMonitor &monitor = registered();
    monitor.setAction({});
    monitor.setAction("press:");
    EXPECT_THAT(hotKeys().journal, ElementsAre("unregister 1", "register 96 256 1"));
}

TEST_F(ShortcutRegistrationTest, AHotKeyThatCannotBeGivenBackIsLoggedAndGone) {
    ShortcutMonitor &monitor = registered();
    hotKeys().unregisterStatus = -7;
    monitor.setShortcut(std::nullopt);
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("UnregisterEventHotKey failed: -7")));
    monitor.setShortcut(std::nullopt);
    EXPECT_THAT(log.lines, testing::SizeIs(1));
}

TEST_F(ShortcutRegistrationTest, AMonitorThatGoesAwayGivesItsHotKeyBack) {
    store(f5());
    {
        ShortcutMonitor brief(name());
        brief.setTarget(&target, "press:");
        EXPECT_EQ(hotKeys().registeredCount(), 1U);
    }
    EXPECT_EQ(hotKeys().registeredCount(), 0U);
    EXPECT_THAT(hotKeys().journal, testing::Contains("unregister 1"));
}

TEST_F(ShortcutRegistrationTest, APlaceWithoutHotKeysIsNoHarm) {
    installPlatform({.settingsStore = &place().platform.settings});
    registered().setShortcut(std::nullopt);
    EXPECT_THAT(log.lines, IsEmpty());
}

} // namespace barquell::test
