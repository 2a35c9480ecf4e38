#include "platform/linux/x11/ApplicationOfWindow.h"

#include "desktop/DesktopFolder.h"
#include "support/LogCapture.h"
#include <QCoreApplication>

#include <sys/stat.h>

namespace barquell::test {

namespace {

class ApplicationOfWindowTest : public testing::Test {
protected:
    /// A process as the kernel's files show it.
    void process(const QString &file, const QByteArray &text) const {
        processes.write(QStringLiteral("77/") + file, text);
    }

    QString identifier(const WindowFacts &window) {
        DesktopEntries entries({folder.path()});
        const RunningApplication application = applicationOfWindow(window, entries, processes.path());
        EXPECT_EQ(application.processId, window.processId);
        EXPECT_EQ(application.bundlePath.isEmpty(),
                  entries.entryWithId(application.bundleIdentifier) == nullptr);
        return application.bundleIdentifier;
    }

    static WindowFacts ofClass(const char *className, const char *instanceName = "x") {
        return {{}, QString::fromUtf8(className), QString::fromUtf8(instanceName), 77};
    }

    DesktopFolder folder;
    DesktopFolder processes;
};

const WindowFacts kNameless{{}, {}, {}, 77};

} // namespace

TEST_F(ApplicationOfWindowTest, TheToolkitsWordComesFirst) {
    folder.writeApplication(QStringLiteral("org.example.Editor.desktop"));
    folder.writeApplication(QStringLiteral("xterm.desktop"));
    WindowFacts window = ofClass("XTerm", "xterm");
    EXPECT_EQ(identifier(window), QStringLiteral("xterm"));
    window.applicationId = QStringLiteral("org.example.Editor");
    EXPECT_EQ(identifier(window), QStringLiteral("org.example.Editor"));
    window.applicationId = QStringLiteral("org.example.NotInstalled");
    EXPECT_EQ(identifier(window), QStringLiteral("xterm"));
}

TEST_F(ApplicationOfWindowTest, AnEntryThatClaimsTheClassIsFound) {
    folder.writeApplication(QStringLiteral("terminal.desktop"), "StartupWMClass=XTerm\n");
    EXPECT_EQ(identifier(ofClass("XTerm")), QStringLiteral("terminal"));
    EXPECT_EQ(identifier(ofClass("Other", "XTerm")), QStringLiteral("terminal"));
}

TEST_F(ApplicationOfWindowTest, TheClassCountsBeforeTheInstance) {
    folder.writeApplication(QStringLiteral("one.desktop"), "StartupWMClass=One\n");
    folder.writeApplication(QStringLiteral("two.desktop"), "StartupWMClass=Two\n");
    EXPECT_EQ(identifier(ofClass("Two", "One")), QStringLiteral("two"));
}

TEST_F(ApplicationOfWindowTest, AnIdWithARaisedFirstLetterIsFound) {
    folder.writeApplication(QStringLiteral("org.example.Editor.desktop"));
    EXPECT_EQ(identifier(ofClass("Org.example.Editor")), QStringLiteral("org.example.Editor"));
}

TEST_F(ApplicationOfWindowTest, AWindowWithoutAnEntryHasNoIdentifier) {
    folder.writeApplication(QStringLiteral("xterm.desktop"));
    EXPECT_EQ(identifier(ofClass("Mystery")), QString());
    EXPECT_EQ(identifier(kNameless), QString());
    EXPECT_EQ(identifier({}), QString());
}

TEST_F(ApplicationOfWindowTest, AFlatpakIsKnownByItsDescription) {
    folder.writeApplication(QStringLiteral("org.example.Player.desktop"));
    folder.writeApplication(QStringLiteral("player.desktop"), "StartupWMClass=player\n");
    process(QStringLiteral("root/.flatpak-info"),
            "[Instance]\nname=wrong\n\n[Application]\nruntime=x\nname=org.example.Player\n\n[Context]\n");
    EXPECT_EQ(identifier(ofClass("player")), QStringLiteral("org.example.Player"));
}

TEST_F(ApplicationOfWindowTest, AFlatpakIsKnownByItsControlGroup) {
    folder.writeApplication(QStringLiteral("org.example.My-Player.desktop"));
    process(QStringLiteral("cgroup"),
            "0::/user.slice/user-1000.slice/app.slice/app-flatpak-org.example.My\\x2dPlayer-4711.scope\n");
    EXPECT_EQ(identifier(kNameless), QStringLiteral("org.example.My-Player"));
}

TEST_F(ApplicationOfWindowTest, ASnapIsKnownByItsControlGroup) {
    folder.writeApplication(QStringLiteral("suite_the-writer.desktop"));
    for (const char *tail : {"-0c8cbcbc-51a0-4f8e-9e5d-2cd1f3b0ac21.scope",
                             ".0c8cbcbc-51a0-4f8e-9e5d-2cd1f3b0ac21.scope", ".scope"}) {
        process(QStringLiteral("cgroup"),
                QByteArray("0::/user.slice/app.slice/snap.suite.the-writer") + tail + "\n");
        EXPECT_EQ(identifier(kNameless), QStringLiteral("suite_the-writer")) << tail;
    }
}

TEST_F(ApplicationOfWindowTest, ASnapIsKnownByItsEnvironment) {
    folder.writeApplication(QStringLiteral("player_player.desktop"));
    process(QStringLiteral("environ"), QByteArray("A=1\0SNAP_INSTANCE_NAME=player\0B=2", 34));
    EXPECT_EQ(identifier(kNameless), QStringLiteral("player_player"));
}

TEST_F(ApplicationOfWindowTest, ALaunchersHintCountsForItsOwnProcessOnly) {
    folder.writeApplication(QStringLiteral("editor.desktop"));
    const QByteArray hint("GIO_LAUNCHED_DESKTOP_FILE=/usr/share/applications/editor.desktop");
    process(QStringLiteral("environ"), hint + '\0' + "GIO_LAUNCHED_DESKTOP_FILE_PID=77");
    EXPECT_EQ(identifier(kNameless), QStringLiteral("editor"));
    process(QStringLiteral("environ"), hint + '\0' + "GIO_LAUNCHED_DESKTOP_FILE_PID=76");
    EXPECT_EQ(identifier(kNameless), QString());
    process(QStringLiteral("environ"), "BAMF_DESKTOP_FILE_HINT=/var/lib/x/editor.desktop");
    EXPECT_EQ(identifier(kNameless), QStringLiteral("editor"));
}

TEST_F(ApplicationOfWindowTest, NonsenseInAProcesssFilesIsHarmless) {
    const QByteArray nonsense = QByteArray(200000, '\xff') + "snap..scope/app-flatpak--.scope\n";
    for (const char *file : {"cgroup", "environ", "root/.flatpak-info"}) {
        process(QString::fromLatin1(file), nonsense);
    }
    EXPECT_EQ(identifier(kNameless), QString());
    process(QStringLiteral("root/.flatpak-info"), "[Application]\nname=\nname");
    EXPECT_EQ(identifier(kNameless), QString());
    process(QStringLiteral("root/.flatpak-info"), "[Application]\nname=../../etc/passwd\n");
    EXPECT_EQ(identifier(kNameless), QString());
    const QString described = processes.path(QStringLiteral("77/root")) + QStringLiteral("/.flatpak-info");
    ASSERT_TRUE(QFile::remove(described));
    ASSERT_EQ(::mkfifo(QFile::encodeName(described).constData(), 0600), 0); // that nobody writes to
    EXPECT_EQ(identifier(kNameless), QString());
}

TEST_F(ApplicationOfWindowTest, AnEntryInABrokenEncodingDisturbsNoOther) {
    const LogCapture logged;
    folder.write(QStringLiteral("broken.desktop"),
                 QByteArray("[Desktop Entry]\nType=Application\nName=\xff\xfe\n"
                            "StartupWMClass=\xc3(\n"));
    folder.writeApplication(QStringLiteral("xterm.desktop"));
    EXPECT_EQ(identifier(ofClass("XTerm", "xterm")), QStringLiteral("xterm"));
    EXPECT_EQ(identifier(ofClass("\xc3(", "\xff")), QString());
    EXPECT_EQ(logged.lines,
              QStringList{QStringLiteral(
                              "The desktop entry \"%1\" is not UTF-8; what cannot be read of it is left out")
                              .arg(folder.path(QStringLiteral("broken.desktop")))});
}

TEST_F(ApplicationOfWindowTest, OwnWindowsAreThisApplications) {
    DesktopEntries entries({folder.path()});
    WindowFacts window = ofClass("Whatever");
    window.processId = QCoreApplication::applicationPid();
    EXPECT_EQ(applicationOfWindow(window, entries).bundleIdentifier, QStringLiteral("com.vexolith.barquell"));
    folder.writeApplication(QStringLiteral("com.vexolith.barquell.desktop"));
    DesktopEntries installed({folder.path()});
    EXPECT_EQ(applicationOfWindow(window, installed).bundlePath,
              folder.path(QStringLiteral("com.vexolith.barquell.desktop")));
}

TEST(OwnEntryTest, TheEntryThatIsInstalledClaimsOwnWindows) {
    DesktopEntries entries({QStringLiteral(BARQUELL_ENTRIES)});
    const DesktopEntry *entry = entries.entryForWindow(QStringLiteral("barquell"));
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->id, QStringLiteral("com.vexolith.barquell"));
    EXPECT_EQ(entry->name, QStringLiteral("Barquell"));
    EXPECT_TRUE(entry->isShown);
}

} // namespace barquell::test
