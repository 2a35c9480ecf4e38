// The Mac's answers to the command line know the seam alone, so they are tried on a scripted place here.

#include "app/Place.h"
#include "app/commands/Check.h"
#include "app/commands/OtherCopies.h"
#include "app/commands/StatusCommand.h"
#include "support/Place.h"

#include <gmock/gmock.h>

namespace barquell {

void installThisMachine() {
    test::place().platform.install();
}

namespace test {
namespace {

const QString kBarquell = QStringLiteral("com.vexolith.barquell");

class MacCommandsTest : public testing::Test {
protected:
    void expect(const char *what, bool good) {
        for (const Check &check : checkEverything()) {
            if (check.what.contains(QLatin1String(what))) {
                EXPECT_EQ(check.good, good) << what;
                return;
            }
        }
        ADD_FAILURE() << "no check of " << what;
    }

    void set(const char *key, const QVariant &value) {
        scripted.settings.write(QString::fromLatin1(key), value);
    }

    QString printed(const QStringList &arguments) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(runStatus(arguments), 0);
        return QString::fromStdString(testing::internal::GetCapturedStdout());
    }

    ScriptedPlatform &scripted = place().platform;
};

TEST_F(MacCommandsTest, RequestsGoToTheRunningCopiesAsDistributedNotifications) {
    QStringList heard;
    const auto hear = [&heard](const QString &name) { heard.append(name); };
    const auto show = scripted.notifications.observe(kBarquell + QStringLiteral(".show"), hear);
    const auto quit = scripted.notifications.observe(kBarquell + QStringLiteral(".quit"), hear);
    scripted.workspace.copies.insert(kBarquell, 1);
    EXPECT_EQ(showRunningCopy(), QString());
    EXPECT_EQ(endRunningCopies(), QString());
    place().loop.runPending();
    EXPECT_EQ(heard, (QStringList{kBarquell + QStringLiteral(".show"), kBarquell + QStringLiteral(".quit")}));
}

TEST_F(MacCommandsTest, WithoutARunningCopyThatIsSaid) {
    EXPECT_EQ(showRunningCopy(), QStringLiteral("Barquell is not running"));
    EXPECT_EQ(endRunningCopies(), QStringLiteral("Barquell is not running"));
}

TEST_F(MacCommandsTest, TheStatusTellsWhatCanBeKnownFromOutside) {
    EXPECT_EQ(printed({QStringLiteral("status"), QStringLiteral("--json")}),
              QStringLiteral("{\"enabled\":true,\"running\":false}\n"));
    set("Enabled", false);
    scripted.workspace.copies.insert(kBarquell, 1);
    EXPECT_EQ(printed({QStringLiteral("status")}),
              QStringLiteral("Running:              yes\nBlocking switched on: no\n"));
}

TEST_F(MacCommandsTest, TheDoctorFindsWhatIsMissing) {
    expect("is running", false);
    expect("one copy", true);
    expect("switched on", true);
    expect("bundle", false);
    set("Enabled", false);
    scripted.workspace.copies.insert(kBarquell, 2);
    expect("is running", true);
    expect("one copy", false);
    expect("switched on", false);
}

TEST_F(MacCommandsTest, TheLoginItemIsLookedAtWhereTheUserWantsIt) {
    set("LaunchAtStart", true);
    scripted.loginItem.known = {LoginItemState::Kind::Off, std::nullopt};
    expect("at login", false);
    scripted.loginItem.known = {LoginItemState::Kind::Found, true};
    expect("at login", true);
    scripted.loginItem.known = {LoginItemState::Kind::Unknown, std::nullopt};
    expect("at login", true);
}

} // namespace
} // namespace test
} // namespace barquell
