#include "platform/linux/desktop/DesktopEntries.h"
#include "desktop/DesktopFolder.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <sys/time.h>

#include <ctime>

namespace barquell::test {
namespace {

QString idOf(const DesktopEntry *entry) {
    return entry ? entry->id : QString();
}

class DesktopEntriesTest : public testing::Test {
protected:
    QString window(const char *name) { return idOf(entries.entryForWindow(QString::fromLatin1(name))); }

    DesktopFolder mine;
    DesktopFolder shared;
    DesktopEntries entries{{mine.path(), shared.path()}};
};

TEST_F(DesktopEntriesTest, AnIdIsThePathWithDashes) {
    shared.writeApplication(QStringLiteral("kde/deep/a.desktop"));
    const DesktopEntry *entry = entries.entryWithId(QStringLiteral("kde-deep-a"));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->path, shared.path(QStringLiteral("kde/deep/a.desktop")));
    EXPECT_EQ(entries.entryWithId(QStringLiteral("a")), nullptr);
}

TEST_F(DesktopEntriesTest, TheFirstFolderComesFirst) {
    mine.writeApplication(QStringLiteral("a.desktop"), "Exec=mine\n");
    shared.writeApplication(QStringLiteral("a.desktop"), "Exec=shared\n");
    EXPECT_EQ(entries.entryWithId(QStringLiteral("a"))->exec, QStringLiteral("mine"));
}

TEST_F(DesktopEntriesTest, AHiddenEntryHidesTheOneBehindIt) {
    mine.writeApplication(QStringLiteral("a.desktop"), "Hidden=true\n");
    shared.writeApplication(QStringLiteral("a.desktop"), "StartupWMClass=A\n");
    EXPECT_EQ(entries.entryWithId(QStringLiteral("a")), nullptr);
    EXPECT_EQ(entries.entryForWindow(QStringLiteral("A")), nullptr);
}

TEST_F(DesktopEntriesTest, ANewFileIsSeen) {
    EXPECT_EQ(entries.entryWithId(QStringLiteral("late")), nullptr);
    mine.writeApplication(QStringLiteral("late.desktop"));
    EXPECT_NE(entries.entryWithId(QStringLiteral("late")), nullptr);
    ASSERT_TRUE(QFile::remove(mine.path(QStringLiteral("late.desktop"))));
    EXPECT_EQ(entries.entryWithId(QStringLiteral("late")), nullptr);
}

TEST_F(DesktopEntriesTest, AFolderThatComesLaterIsSeen) {
    DesktopEntries later({mine.path(QStringLiteral("none"))});
    EXPECT_EQ(later.entryWithId(QStringLiteral("a")), nullptr);
    mine.writeApplication(QStringLiteral("none/a.desktop"));
    EXPECT_NE(later.entryWithId(QStringLiteral("a")), nullptr);
}

/// A change as young as a moment is not yet trusted to be the last one.
void makeOld(const QString &folder) {
    const timeval hourAgo{::time(nullptr) - 3600, 0};
    const timeval times[] = {hourAgo, hourAgo};
    ASSERT_EQ(::utimes(QFile::encodeName(folder).constData(), times), 0);
}

TEST_F(DesktopEntriesTest, AnUnchangedFolderIsNotReadAgain) {
    mine.writeApplication(QStringLiteral("a.desktop"), "Exec=old\n");
    makeOld(mine.path());
    makeOld(shared.path());
    EXPECT_EQ(entries.entryWithId(QStringLiteral("a"))->exec, QStringLiteral("old"));
    mine.writeApplication(QStringLiteral("a.desktop"), "Exec=new\n"); // the folder holds what it held
    EXPECT_EQ(entries.entryWithId(QStringLiteral("a"))->exec, QStringLiteral("old"));
}

TEST_F(DesktopEntriesTest, WindowsAreKnownByTheirClass) {
    shared.writeApplication(QStringLiteral("org.example.Edit.desktop"), "StartupWMClass=edit-window\n");
    shared.writeApplication(QStringLiteral("xterm.desktop"));
    EXPECT_EQ(window("edit-window"), QStringLiteral("org.example.Edit"));
    EXPECT_EQ(window("org.example.Edit"), QStringLiteral("org.example.Edit"));
    EXPECT_EQ(window("Edit-Window"), QStringLiteral("org.example.Edit"));
    EXPECT_EQ(window("XTerm"), QStringLiteral("xterm"));
    EXPECT_EQ(window("unknown"), QString());
    EXPECT_EQ(window(""), QString());
}

TEST_F(DesktopEntriesTest, AClaimComesBeforeAnId) {
    shared.writeApplication(QStringLiteral("app.desktop"));
    shared.writeApplication(QStringLiteral("claims.desktop"), "StartupWMClass=app\n");
    EXPECT_EQ(window("app"), QStringLiteral("claims"));
}

TEST_F(DesktopEntriesTest, OfTwoClaimsTheOneThatMenusShowCounts) {
    shared.writeApplication(QStringLiteral("a.desktop"), "NoDisplay=true\nStartupWMClass=app\n");
    shared.writeApplication(QStringLiteral("b.desktop"), "StartupWMClass=app\n");
    EXPECT_EQ(window("app"), QStringLiteral("b"));
}

TEST_F(DesktopEntriesTest, TheExactSpellingComesFirst) {
    shared.writeApplication(QStringLiteral("a.desktop"), "StartupWMClass=APP\n");
    shared.writeApplication(QStringLiteral("b.desktop"), "StartupWMClass=app\n");
    EXPECT_EQ(window("APP"), QStringLiteral("a"));
    EXPECT_EQ(window("app"), QStringLiteral("b"));
}

TEST_F(DesktopEntriesTest, AFileAnywhereHasItsNameAsId) {
    shared.writeApplication(QStringLiteral("kde/a.desktop"));
    const DesktopFolder elsewhere;
    elsewhere.writeApplication(QStringLiteral("b.desktop"));
    const QStringList folders = entries.folders();
    EXPECT_EQ(DesktopEntries::entryInFile(shared.path(QStringLiteral("kde/a.desktop")), folders)->id,
              QStringLiteral("kde-a"));
    EXPECT_EQ(DesktopEntries::entryInFile(elsewhere.path(QStringLiteral("b.desktop")), folders)->id,
              QStringLiteral("b"));
    EXPECT_FALSE(DesktopEntries::entryInFile(shared.path(), folders));
}

TEST_F(DesktopEntriesTest, FoldersThatRunInCirclesEnd) {
    shared.writeApplication(QStringLiteral("a.desktop"));
    ASSERT_TRUE(QFile::link(shared.path(), shared.path(QStringLiteral("circle"))));
    EXPECT_NE(entries.entryWithId(QStringLiteral("a")), nullptr);
}

TEST_F(DesktopEntriesTest, ManyLinksInACircleAreFollowedOnce) {
    shared.writeApplication(QStringLiteral("a.desktop"));
    shared.writeApplication(QStringLiteral("sub/b.desktop"));
    for (int link = 0; link < 8; ++link) {
        ASSERT_TRUE(QFile::link(QStringLiteral("."), shared.path(QStringLiteral("here%1").arg(link))));
        ASSERT_TRUE(
            QFile::link(QStringLiteral("../sub"), shared.path(QStringLiteral("sub/here%1").arg(link))));
    }
    EXPECT_NE(entries.entryWithId(QStringLiteral("a")), nullptr);
    EXPECT_NE(entries.entryWithId(QStringLiteral("sub-b")), nullptr);
    EXPECT_EQ(entries.entryWithId(QStringLiteral("here0-a")), nullptr);
}

TEST_F(DesktopEntriesTest, FilesThatAreNoEntriesCountAsWell) {
    const LogCapture logged;
    for (int file = 0; file <= 20000; ++file) {
        mine.write(QStringLiteral("%1.desktop").arg(file), {});
    }
    shared.writeApplication(QStringLiteral("late.desktop"));
    EXPECT_EQ(entries.entryWithId(QStringLiteral("late")), nullptr);
    EXPECT_EQ(entries.entryWithId(QStringLiteral("late")), nullptr); // read again, since the folder is young
    EXPECT_EQ(logged.lines,
              QStringList{QStringLiteral(
                  "There are more than 20000 files among the desktop entries; the rest is left out")});
}

TEST_F(DesktopEntriesTest, PipesAndBrokenLinksAreNoApplications) {
    const LogCapture logged;
    ASSERT_TRUE(
        QFile::link(mine.path(QStringLiteral("nowhere")), mine.path(QStringLiteral("broken.desktop"))));
    ASSERT_EQ(::mkfifo(QFile::encodeName(mine.path(QStringLiteral("pipe.desktop"))).constData(), 0600), 0);
    EXPECT_EQ(entries.entryWithId(QStringLiteral("broken")), nullptr);
    EXPECT_EQ(entries.entryWithId(QStringLiteral("pipe")), nullptr);
    EXPECT_EQ(
        logged.lines,
        QStringList{QStringLiteral("The desktop entry \"%1\" cannot be read: it is not a regular file")
                        .arg(mine.path(QStringLiteral("pipe.desktop")))}); // once, though it was read twice
}

TEST_F(DesktopEntriesTest, TheStandardFolders) {
    qputenv("XDG_DATA_HOME", "/h");
    qputenv("XDG_DATA_DIRS", "/a/:/var/lib/flatpak/exports/share:/b");
    EXPECT_EQ(DesktopEntries::standardFolders(),
              QStringList({QStringLiteral("/h/applications"), QStringLiteral("/a/applications"),
                           QStringLiteral("/var/lib/flatpak/exports/share/applications"),
                           QStringLiteral("/b/applications"),
                           QStringLiteral("/h/flatpak/exports/share/applications"),
                           QStringLiteral("/var/lib/snapd/desktop/applications")}));
}

} // namespace
} // namespace barquell::test
