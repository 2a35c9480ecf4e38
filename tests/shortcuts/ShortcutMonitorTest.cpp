#include "MonitorFixture.h"

#include "shortcuts/ShortcutMonitorTargetActions.h"

namespace barquell::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ShortcutMonitorTest : public MonitorFixture {};

} // namespace

TEST_F(ShortcutMonitorTest, ThereIsOneMonitorForAName) {
    EXPECT_EQ(ShortcutMonitor::existingMonitorWithName(name()), nullptr);
    ShortcutMonitor *const monitor = ShortcutMonitor::monitorWithName(name());
    EXPECT_EQ(monitor->name(), name());
    EXPECT_EQ(ShortcutMonitor::monitorWithName(name()), monitor);
    EXPECT_EQ(ShortcutMonitor::existingMonitorWithName(name()), monitor);
    EXPECT_NE(ShortcutMonitor::monitorWithName(QStringLiteral("Sound")), monitor);
}

TEST_F(ShortcutMonitorTest, ANullNameHasNoMonitor) {
    EXPECT_EQ(ShortcutMonitor::monitorWithName({}), nullptr);
}

TEST_F(ShortcutMonitorTest, AMonitorBeginsWithWhatIsStored) {
    store(f5());
    const ShortcutMonitor &monitor = *ShortcutMonitor::monitorWithName(name());
    EXPECT_TRUE(monitor.enabled());
    ASSERT_TRUE(monitor.shortcut());
    EXPECT_EQ(monitor.shortcut()->keyCode(), 96U);
}

TEST_F(ShortcutMonitorTest, AMonitorBeginsWithTheRegisteredDefault) {
    ShortcutMonitor::registerDefaultForName(name(), 32, 0x1C0000, false);
    const ShortcutMonitor &monitor = *ShortcutMonitor::monitorWithName(name());
    EXPECT_FALSE(monitor.enabled());
    EXPECT_EQ(monitor.shortcut()->description(), QStringLiteral("{key=U[32], flags=⌃⌥⌘}"));
}

TEST_F(ShortcutMonitorTest, RegisteringNoKeyAndNotEnabledRegistersNothing) {
    ShortcutMonitor::registerDefaultForName(name(), 0, 0x100000, false);
    EXPECT_FALSE(defaults().objectForKey(name()).isValid());
    EXPECT_FALSE(defaults().objectForKey(name() + QStringLiteral("Enabled")).isValid());
}

TEST_F(ShortcutMonitorTest, DefaultsAreRegisteredWhereTheySaySomething) {
    ShortcutMonitor::registerDefaultForName(name(), 96, 0, true);
    EXPECT_EQ(defaults().objectForKey(name()), QVariant(Shortcut::storageRepresentation(96, 0)));
    EXPECT_EQ(defaults().objectForKey(name() + QStringLiteral("Enabled")), QVariant(true));
    EXPECT_THAT(defaults().persistentDomain(), IsEmpty());
}

TEST_F(ShortcutMonitorTest, SettingAShortcutStoresItAndTellsOnce) {
    ShortcutMonitor &monitor = registered();
    monitor.addChangeListener(&listener, false);
    monitor.setShortcut(Shortcut(97, kFlagControl));
    EXPECT_EQ(listener.changes, 1); // so the settings' own change did not come back
    EXPECT_EQ(defaults().objectForKey(name()), QVariant(Shortcut::storageRepresentation(97, kFlagControl)));
    EXPECT_EQ(monitor.shortcut()->keyCode(), 97U);
    EXPECT_THAT(hotKeys().journal, ElementsAre("unregister 1", "register 97 4096 1"));
}

TEST_F(ShortcutMonitorTest, SettingAShortcutKeepsACopyWithTheNameComputedAnew) {
    ShortcutMonitor &monitor = registered();
    monitor.setShortcut(Shortcut(0, kFlagCommand, QStringLiteral("Q")));
    EXPECT_EQ(monitor.shortcut()->keyCodeString(), QStringLiteral("A"));
}

TEST_F(ShortcutMonitorTest, SettingNoShortcutStoresTheEmptyListAndKeepsTheSwitch) {
    ShortcutMonitor &monitor = registered();
    monitor.setShortcut(std::nullopt);
    EXPECT_EQ(defaults().objectForKey(name()), QVariant(QVariantList{}));
    EXPECT_EQ(defaults().objectForKey(name() + QStringLiteral("Enabled")), QVariant(true));
    EXPECT_TRUE(monitor.enabled());
    EXPECT_THAT(hotKeys().journal, ElementsAre("unregister 1"));
}

TEST_F(ShortcutMonitorTest, AMonitorWithoutANameStoresNothing) {
    ShortcutMonitor nameless{QString()};
    nameless.addChangeListener(&listener, false);
    nameless.setShortcut(Shortcut(96, 0));
    EXPECT_FALSE(nameless.shortcut());
    EXPECT_EQ(listener.changes, 0);
    EXPECT_THAT(defaults().persistentDomain(), IsEmpty());
}

TEST_F(ShortcutMonitorTest, StoringTheSameShortcutRegistersItAgainAndTellsOnce) {
    registered().addChangeListener(&listener, false);
    defaults().setObject(f5(), name());
    EXPECT_THAT(hotKeys().journal, ElementsAre("unregister 1", "register 96 256 1"));
    EXPECT_EQ(listener.changes, 1);
}

TEST_F(ShortcutMonitorTest, TheSwitchIsFollowedAndAnEqualOneIsNoChange) {
    ShortcutMonitor &monitor = registered();
    monitor.addChangeListener(&listener, false);
    const QString key = name() + QStringLiteral("Enabled");
    defaults().setObject(true, key);
    EXPECT_EQ(listener.changes, 0);
    EXPECT_THAT(hotKeys().journal, IsEmpty());
    defaults().setObject(false, key);
    EXPECT_EQ(listener.changes, 1);
    EXPECT_FALSE(monitor.enabled());
    defaults().removeObjectForKey(key);
    EXPECT_EQ(listener.changes, 1);
    defaults().setObject(QStringLiteral("YES"), key);
    EXPECT_EQ(listener.changes, 2);
    EXPECT_THAT(hotKeys().journal, ElementsAre("unregister 1", "register 96 256 1"));
}

TEST_F(ShortcutMonitorTest, AStoredValueOfAnyWrongShapeIsNoShortcutAndStaysAsItIs) {
    const QVariantList wrong{QStringLiteral("⌘A"),
                             QVariantList{qlonglong{96}},
                             QVariantList{QStringLiteral("96"), QStringLiteral("0")},
                             QVariantMap{{QStringLiteral("key"), qlonglong{96}}},
                             true,
                             12.5,
                             QByteArray("96")};
    ShortcutMonitor &monitor = registered();
    for (const QVariant &value : wrong) {
        defaults().setObject(value, name());
        EXPECT_FALSE(monitor.shortcut());
        EXPECT_EQ(defaults().persistentDomain().value(name()), value);
    }
    EXPECT_EQ(hotKeys().registeredCount(), 0U);
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(ShortcutMonitorTest, NumbersThatAreNoKeysStayStoredAndAreRefusedInOneLine) {
    registered();
    hotKeys().registerStatus = -50;
    const QVariantList huge{qlonglong{-1}, qlonglong{0x7FFFFFFFFFFFFFFF}};
    defaults().setObject(huge, name());
    EXPECT_EQ(defaults().persistentDomain().value(name()), QVariant(huge));
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("RegisterEventHotKey failed: -50")));
}

TEST_F(ShortcutMonitorTest, AKeyCodeBeyondAllKeysDoesNotBecomeAnotherKey) {
    registered();
    defaults().setObject(QVariantList{qlonglong{0x100000000} + 96, qlonglong{0}}, name());
    EXPECT_FALSE(hotKeys().isRegistered(96, 0));
    EXPECT_TRUE(hotKeys().isRegistered(0xFFFFFFFF, 0));
}

TEST_F(ShortcutMonitorTest, AListenerIsToldAtOnceIfItWantsTo) {
    ShortcutMonitor &monitor = registered();
    EXPECT_TRUE(monitor.addChangeListener(&listener, true));
    EXPECT_EQ(listener.changes, 1);
    EXPECT_EQ(listener.last, &monitor);
}

TEST_F(ShortcutMonitorTest, NoListenerIsRefused) {
    EXPECT_FALSE(registered().addChangeListener(nullptr, true));
    EXPECT_FALSE(registered().addChangeListener(&target, true));
}

TEST_F(ShortcutMonitorTest, AListenerAddedTwiceIsToldOnce) {
    ShortcutMonitor &monitor = registered();
    monitor.addChangeListener(&listener, false);
    monitor.addChangeListener(&listener, false);
    monitor.setShortcut(std::nullopt);
    EXPECT_EQ(listener.changes, 1);
}

TEST_F(ShortcutMonitorTest, ARemovedListenerIsToldNoMore) {
    ShortcutMonitor &monitor = registered();
    monitor.addChangeListener(&listener, false);
    monitor.removeChangeListener(&listener);
    monitor.setShortcut(std::nullopt);
    EXPECT_EQ(listener.changes, 0);
}

TEST_F(ShortcutMonitorTest, AListenerThatIsGoneIsForgotten) {
    ShortcutMonitor &monitor = registered();
    {
        MonitorListener brief;
        monitor.addChangeListener(&brief, false);
    }
    monitor.addChangeListener(&listener, false);
    monitor.setShortcut(std::nullopt);
    EXPECT_EQ(listener.changes, 1);
}

TEST_F(ShortcutMonitorTest, AListenerMayRemoveItselfWhileItIsTold) {
    class Leaving final : public QObject, public ShortcutMonitorListener {
    public:
        void shortcutMonitorDidChange(ShortcutMonitor *monitor) override {
            ++changes;
            monitor->removeChangeListener(this);
        }
        int changes = 0;
    };
    Leaving leaving;
    ShortcutMonitor &monitor = registered();
    monitor.addChangeListener(&leaving, false);
    monitor.addChangeListener(&listener, false);
    monitor.setShortcut(std::nullopt);
    monitor.setShortcut(std::nullopt);
    EXPECT_EQ(leaving.changes, 1);
    EXPECT_EQ(listener.changes, 2);
}

TEST_F(ShortcutMonitorTest, TargetAndActionAreAPairThatHoldsItsTargetWeakly) {
    auto brief = std::make_unique<MonitorTarget>();
    ShortcutMonitorTargetActions pair(brief.get(), "press:");
    EXPECT_EQ(pair.target(), brief.get());
    EXPECT_EQ(pair.action(), Selector("press:"));
    brief.reset();
    EXPECT_EQ(pair.target(), nullptr);
    pair.setTarget(&target);
    pair.setAction("other");
    EXPECT_EQ(pair.target(), &target);
    EXPECT_EQ(pair.action(), Selector("other"));
}

} // namespace barquell::test
