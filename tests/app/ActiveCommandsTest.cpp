// `barquell toggle` and `barquell active`, and what reaches a running copy, run as a user does.

#include "foundation/Values.h"
#include "platform/SettingsFolder.h"
#include "platform/linux/FileSettingsStore.h"

#include <gmock/gmock.h>

#include <QProcess>

namespace barquell {
namespace {

const QString kFile = QStringLiteral("com.vexolith.barquell/settings.json");

class ActiveCommandsTest : public testing::Test {
protected:
    struct Result {
        int exitCode = -1;
        QByteArray output;
        QByteArray errors;
    };

    /// The words of a command line without quoting, in a session without a bus or a display.
    Result run(const char *line) const {
        QProcess command;
        QProcessEnvironment environment;
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), configuration.path(QString()));
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), configuration.path(QStringLiteral("none")));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nowhere"));
        command.setProcessEnvironment(environment);
        command.start(QStringLiteral(BARQUELL_PROGRAM), QString::fromUtf8(line).split(QLatin1Char(' ')));
        const bool ended = command.waitForFinished() && command.exitStatus() == QProcess::NormalExit;
        return {ended ? command.exitCode() : -1, command.readAllStandardOutput(),
                command.readAllStandardError()};
    }

    void expectStored(const char *line, const QVariant &active) const {
        const Result result = run(line);
        EXPECT_EQ(result.exitCode, 0) << line << ": " << result.errors.toStdString();
        EXPECT_EQ(result.output, QByteArray()) << line;
        EXPECT_TRUE(sameValue(stored(), QVariantMap{{QStringLiteral("Active"), active}})) << line;
    }

    void expectRefused(const char *line, int exitCode) const {
        const QVariantMap before = stored();
        const Result result = run(line);
        EXPECT_EQ(result.exitCode, exitCode) << line;
        EXPECT_EQ(result.errors.count('\n'), 1) << line << ": " << result.errors.toStdString();
        EXPECT_TRUE(sameValue(stored(), before)) << line;
    }

    QVariantMap stored() const { return FileSettingsStore(configuration.path(kFile)).read(); }

    test::SettingsFolder configuration;
};

TEST_F(ActiveCommandsTest, ToggleTurnsActiveOverAndTwiceRestoresIt) {
    expectStored("toggle", true);
    expectStored("toggle", false);
    expectStored("toggle", true);
}

TEST_F(ActiveCommandsTest, AnActiveTouchBarStoresFalse) {
    expectStored("active on", false);
    expectStored("active off", true);
}

TEST_F(ActiveCommandsTest, WrongWordsChangeNothing) {
    run("active on");
    for (const char *line :
         {"active", "active maybe", "active on off", "active --on", "active ON", "toggle now", "show now",
          "quit now", "status now", "doctor now", "toggle --json"}) {
        expectRefused(line, 2);
    }
}

TEST_F(ActiveCommandsTest, HelpSaysThatItCountsLater) {
    for (const char *line : {"toggle --help", "active --help"}) {
        EXPECT_TRUE(run(line).output.contains("starts next")) << line;
    }
    EXPECT_TRUE(run("--help").output.contains("next start"));
}

TEST_F(ActiveCommandsTest, WithoutABusNobodyCanBeShownOrEnded) {
    expectRefused("show", 1);
    expectRefused("quit", 1);
}

TEST_F(ActiveCommandsTest, ASimulatedBarNeedsADisplay) {
    expectRefused("--simulate", 1);
}

TEST_F(ActiveCommandsTest, StatusAnswersWithoutABusAServerOrARunningCopy) {
    const Result result = run("status --json");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.contains("\"running\":false")) << result.output.toStdString();
    EXPECT_TRUE(result.output.contains("\"pauseFlags\":null")) << result.output.toStdString();
}

TEST_F(ActiveCommandsTest, DoctorNamesWhatIsMissingAndWhatMendsIt) {
    const Result result = run("doctor");
    EXPECT_EQ(result.exitCode, 1);
    for (const char *line :
         {"MISSING  there is a display", "MISSING  there is a session bus",
          "MISSING  the window manager tells what is in front", "MISSING  Barquell is running",
          "ok       the settings can be read and written"}) {
        EXPECT_TRUE(result.output.contains(line)) << line << " in " << result.output.toStdString();
    }
}

} // namespace
} // namespace barquell
