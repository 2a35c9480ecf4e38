#include "app/StatusReport.h"
#include "app/AppFixture.h"

namespace barquell::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StatusReportTest : public AppFixture {
protected:
    static QVariant reported(const char *key) { return statusReport().value(QString::fromLatin1(key)); }
};

TEST_F(StatusReportTest, SaysHowBlockingStands) {
    launchSilently();
    EXPECT_EQ(reported("enabled"), QVariant(true));
    EXPECT_EQ(reported("trusted"), QVariant(true));
    EXPECT_EQ(reported("effectivelyEnabled"), QVariant(true));
    EXPECT_THAT(reported("pauseFlags").toStringList(), IsEmpty());
    EXPECT_THAT(reported("pauseKeysHeld").toStringList(), IsEmpty());
}

TEST_F(StatusReportTest, NamesThePauseFlagsAndTheApplicationInFront) {
    set("BypassApps", QVariantList{QStringLiteral("org.example.player")});
    launchSilently();
    bringToFront(QStringLiteral("org.example.player"));
    post("com.apple.shieldWindowRaised");
    EXPECT_THAT(reported("pauseFlags").toStringList(),
                ElementsAre(QStringLiteral("bypassed application"), QStringLiteral("screen shield")));
    EXPECT_EQ(reported("effectivelyEnabled"), QVariant(false));
    EXPECT_EQ(reported("frontmostApplication").toString(), QStringLiteral("org.example.player"));
}

TEST_F(StatusReportTest, NamesThePauseKeysThatAreHeldAndHonoured) {
    set("PauseKeyShift", true);
    set("PauseKeyShiftType", 2);
    launchSilently();
    here.platform.modifiers.flags = kFlagFn | kFlagShift | kFlagRightShift | kFlagOption;
    EXPECT_THAT(reported("pauseKeysHeld").toStringList(),
                testing::UnorderedElementsAre(QStringLiteral("Fn"), QStringLiteral("ShiftR")));
    set("PauseKeyAllowed", false);
    EXPECT_THAT(reported("pauseKeysHeld").toStringList(), IsEmpty());
}

TEST_F(StatusReportTest, SaysWhereTheFrontmostApplicationCannotBeKnown) {
    here.platform.workspace.knowsFrontmost = false;
    launchSilently();
    EXPECT_EQ(reported("knowsFrontmostApplication"), QVariant(false));
    EXPECT_EQ(reported("frontmostApplication").toString(), QString());
}

TEST_F(StatusReportTest, SaysWhetherSomebodyShowsStatusItems) {
    launchSilently();
    EXPECT_EQ(reported("hasStatusBar"), QVariant(true));
    here.platform.statusBar.host = false;
    EXPECT_EQ(reported("hasStatusBar"), QVariant(false));
}

} // namespace
} // namespace barquell::test
