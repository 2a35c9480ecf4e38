#include "platform/linux/desktop/DesktopEntry.h"
#include "desktop/DesktopFolder.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

const QByteArray kHead = "[Desktop Entry]\nType=Application\n";

DesktopEntry parsed(const QByteArray &lines, const QString &locale = {}, const QStringList &desktops = {}) {
    return parseDesktopEntry(kHead + lines, locale, desktops).value_or(DesktopEntry());
}

TEST(DesktopEntryTest, TheKeysOfAnApplication) {
    const DesktopEntry entry =
        parsed("# a comment\nName = Text Editor\nIcon=editor\nExec=\"/opt/a b/edit\" %U\n"
               "StartupWMClass=Editor\nUnknown=x\n");
    EXPECT_EQ(entry.name, QStringLiteral("Text Editor"));
    EXPECT_EQ(entry.icon, QStringLiteral("editor"));
    EXPECT_EQ(entry.exec, QStringLiteral("\"/opt/a b/edit\" %U"));
    EXPECT_EQ(entry.program(), QStringLiteral("edit"));
    EXPECT_EQ(entry.startupWmClass, QStringLiteral("Editor"));
    EXPECT_TRUE(entry.isShown);
    EXPECT_FALSE(entry.isHidden);
}

TEST(DesktopEntryTest, OtherGroupsAreOthers) {
    const DesktopEntry entry = parsed("Exec=one\n[Desktop Action new]\nName=New Window\nExec=two\n");
    EXPECT_EQ(entry.name, QString());
    EXPECT_EQ(entry.program(), QStringLiteral("one"));
}

TEST(DesktopEntryTest, TheNearestLanguageCounts) {
    const QByteArray lines = "Name=plain\nName[sr]=sr\nName[sr_RS]=sr_RS\nName[sr@latin]=sr@latin\n";
    EXPECT_EQ(parsed(lines, QStringLiteral("sr_RS.UTF-8@latin")).name, QStringLiteral("sr_RS"));
    EXPECT_EQ(parsed(lines, QStringLiteral("sr_ME@latin")).name, QStringLiteral("sr@latin"));
    EXPECT_EQ(parsed(lines, QStringLiteral("sr_ME")).name, QStringLiteral("sr"));
    EXPECT_EQ(parsed(lines, QStringLiteral("de_DE.UTF-8")).name, QStringLiteral("plain"));
    EXPECT_EQ(parsed(lines, QStringLiteral("C")).name, QStringLiteral("plain"));
    EXPECT_EQ(parsed(lines, QString()).name, QStringLiteral("plain"));
}

TEST(DesktopEntryTest, EscapesAreTaken) {
    EXPECT_EQ(parsed("Name=a\\sb\\\\c\\td\\\n").name, QStringLiteral("a b\\c\td\\"));
}

TEST(DesktopEntryTest, WhichMenusShowIt) {
    const QStringList gnome{QStringLiteral("ubuntu"), QStringLiteral("GNOME")};
    EXPECT_FALSE(parsed("NoDisplay=true\n", {}, gnome).isShown);
    EXPECT_TRUE(parsed("OnlyShowIn=KDE;GNOME;\n", {}, gnome).isShown);
    EXPECT_FALSE(parsed("OnlyShowIn=KDE;\n", {}, gnome).isShown);
    EXPECT_FALSE(parsed("NotShowIn=GNOME;\n", {}, gnome).isShown);
    EXPECT_TRUE(parsed("NotShowIn=KDE\n", {}, gnome).isShown);
    EXPECT_TRUE(parsed("Hidden=true\n").isHidden);
}

TEST(DesktopEntryTest, WhatIsNoApplication) {
    for (const char *text : {"", "words", "[Desktop Entry]", "[Desktop Entry]\nType=Link\nURL=x\n",
                             "Type=Application\nName=without group\n"}) {
        EXPECT_FALSE(parseDesktopEntry(text, QString(), {})) << text;
    }
}

TEST(DesktopEntryTest, ALineInABrokenEncodingCountsAsAbsent) {
    const DesktopEntry entry =
        parsed("Name=good\nName[de]=gr\xfc\xdf\nIcon=\xff\xfe\n", QStringLiteral("de_DE"));
    EXPECT_EQ(entry.name, QStringLiteral("good"));
    EXPECT_EQ(entry.icon, QString());
}

TEST(DesktopEntryTest, NoBytesAreTooMuch) {
    const QByteArray whole =
        kHead + "Name=\xc3\xa9\\\\\nName[de_DE@euro]=x\nExec=\"\nOnlyShowIn=;;a\\;b;\n=\n[\n";
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        for (const char byte : {'\0', '\xff', '=', '[', '\\', '\n'}) {
            QByteArray bytes = whole.left(length) + byte + whole.mid(length + 1);
            const auto entry = parseDesktopEntry(bytes, QStringLiteral("de_DE@euro"), {});
            EXPECT_TRUE(!entry || entry->program().size() < bytes.size());
        }
    }
}

TEST(DesktopEntryTest, AFileThatIsTooLargeIsOneLine) {
    const LogCapture logged;
    const DesktopFolder folder;
    folder.writeApplication(QStringLiteral("large.desktop"), QByteArray(2 << 20, '#'));
    EXPECT_FALSE(readDesktopEntry(folder.path(QStringLiteral("large.desktop")), QStringLiteral("large")));
    EXPECT_EQ(logged.lines.size(), 1);
    EXPECT_FALSE(readDesktopEntry(folder.path(QStringLiteral("none.desktop")), QStringLiteral("none")));
    EXPECT_EQ(logged.lines.size(), 1);
}

} // namespace
} // namespace barquell::test
