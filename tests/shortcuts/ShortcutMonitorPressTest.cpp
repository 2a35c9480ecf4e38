#include "MonitorFixture.h"

namespace barquell::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ShortcutPressTest : public MonitorFixture {
protected:
    static void press() {
        hotKeys().press(96, kHotKeyCommand);
        place().loop.runPending();
    }
};

} // namespace

TEST_F(ShortcutPressTest, APressSendsTheActionWithTheMonitor) {
    ShortcutMonitor &monitor = registered();
    press();
    EXPECT_THAT(target.senders, ElementsAre(&monitor));
    EXPECT_THAT(hotKeys().passedOn, IsEmpty());
}

TEST_F(ShortcutPressTest, TheActionRunsLaterFromTheRunLoop) {
    registered();
    EXPECT_TRUE(hotKeys().tell({0x76787363, 1}));
    EXPECT_THAT(target.senders, IsEmpty());
    place().loop.runPending();
    EXPECT_THAT(target.senders, testing::SizeIs(1));
}

TEST_F(ShortcutPressTest, APressWithoutATargetSendsNothingAndIsTakenAllTheSame) {
    registered().setTarget(nullptr);
    press();
    EXPECT_THAT(hotKeys().passedOn, IsEmpty());
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(ShortcutPressTest, ATargetThatIsGoneGetsNothing) {
    ShortcutMonitor &monitor = registered();
    auto brief = std::make_unique<MonitorTarget>();
    monitor.setTarget(brief.get());
    hotKeys().press(96, kHotKeyCommand);
    brief.reset();
    place().loop.runPending();
    EXPECT_EQ(monitor.target(), nullptr);
    EXPECT_THAT(hotKeys().passedOn, IsEmpty());
}

TEST_F(ShortcutPressTest, APressOfOurSignatureIsTakenEvenIfNobodyHasTheNumber) {
    registered();
    EXPECT_TRUE(hotKeys().tell({0x76787363, 99}));
    place().loop.runPending();
    EXPECT_THAT(target.senders, IsEmpty());
}

TEST_F(ShortcutPressTest, APressOfAnotherSignatureIsPassedOn) {
    registered();
    EXPECT_FALSE(hotKeys().tell({0x6F746872, 1}));
    place().loop.runPending();
    EXPECT_THAT(target.senders, IsEmpty());
}

TEST_F(ShortcutPressTest, EachMonitorHasItsOwnNumber) {
    ShortcutMonitor &first = registered();
    const QString other = QStringLiteral("Sound");
    defaults().setObject(QVariantList{97, 0}, other);
    defaults().setObject(true, other + QStringLiteral("Enabled"));
    ShortcutMonitor &second = *ShortcutMonitor::monitorWithName(other);
    second.setTarget(&target, "press:");
    hotKeys().press(97, 0);
    hotKeys().press(96, kHotKeyCommand);
    place().loop.runPending();
    EXPECT_THAT(target.senders, ElementsAre(&second, &first));
}

TEST_F(ShortcutPressTest, ATargetThatLacksTheActionIsSaidInOneLine) {
    registered().setAction("dance:");
    press();
    EXPECT_THAT(log.lines, ElementsAre(QStringLiteral("Receiver does not respond to selector: dance:")));
}

TEST_F(ShortcutPressTest, AnActionMayTakeNoArgument) {
    registered().setAction("other");
    press();
    EXPECT_EQ(target.others, 1);
}

} // namespace barquell::test
