#include "platform/linux/desktop/LinuxApplications.h"
#include "desktop/DesktopFolder.h"

#include <QIcon>
#include <QImage>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

class LinuxApplicationsTest : public testing::Test {
protected:
    DesktopFolder folder;
    DesktopEntries entries{{folder.path()}};
    LinuxApplications applications{entries};
    const QString file = folder.path(QStringLiteral("sub/edit.desktop"));
};

TEST_F(LinuxApplicationsTest, AFileAndItsIdentifierLeadToEachOther) {
    folder.writeApplication(QStringLiteral("sub/edit.desktop"));
    EXPECT_EQ(applications.pathOfApplication(QStringLiteral("sub-edit")), file);
    EXPECT_EQ(applications.bundleIdentifier(file), QStringLiteral("sub-edit"));
    EXPECT_EQ(applications.pathOfApplication(QStringLiteral("none")), QString());
}

TEST_F(LinuxApplicationsTest, NamesAreTheEntrys) {
    folder.write(QStringLiteral("sub/edit.desktop"),
                 "[Desktop Entry]\nType=Application\nName=Editor\nExec=ed\n");
    EXPECT_EQ(applications.displayName(file), QStringLiteral("Editor"));
    EXPECT_EQ(applications.ownName(file), QStringLiteral("Editor"));
}

TEST_F(LinuxApplicationsTest, WithoutANameTheProgramIsTheOwnName) {
    folder.write(QStringLiteral("sub/edit.desktop"),
                 "[Desktop Entry]\nType=Application\nExec=/usr/bin/ed %U\n");
    EXPECT_EQ(applications.displayName(file), QString());
    EXPECT_EQ(applications.ownName(file), QStringLiteral("ed"));
}

TEST_F(LinuxApplicationsTest, WhatIsNoApplicationHasNoIdentifier) {
    folder.write(QStringLiteral("link.desktop"), "[Desktop Entry]\nType=Link\nURL=x\n");
    folder.write(QStringLiteral("text.txt"), "[Desktop Entry]\nType=Application\n");
    folder.writeApplication(QStringLiteral("deleted.desktop"), "Hidden=true\n");
    folder.write(QStringLiteral("broken.desktop"), "\xff\xfe[Desktop");
    for (const char *name :
         {"link.desktop", "text.txt", "deleted.desktop", "broken.desktop", "none.desktop", ""}) {
        EXPECT_EQ(applications.bundleIdentifier(folder.path(QString::fromLatin1(name))), QString()) << name;
    }
}

TEST_F(LinuxApplicationsTest, AnIconMayBeAFile) {
    QImage red(8, 8, QImage::Format_ARGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.path(QStringLiteral("red.png"))));
    folder.writeApplication(QStringLiteral("sub/edit.desktop"),
                            "Icon=" + folder.path(QStringLiteral("red.png")).toUtf8() + "\n");
    EXPECT_EQ(applications.icon(file).pixmap(8, 8).toImage().pixelColor(4, 4), QColor(Qt::red));
}

TEST_F(LinuxApplicationsTest, AnIconMayBeOfTheTheme) {
    QImage blue(16, 16, QImage::Format_ARGB32);
    blue.fill(Qt::blue);
    folder.write(QStringLiteral("icons/own/index.theme"),
                 "[Icon Theme]\nName=own\nDirectories=16\n[16]\nSize=16\n");
    ASSERT_TRUE(QDir().mkpath(folder.path(QStringLiteral("icons/own/16"))));
    ASSERT_TRUE(blue.save(folder.path(QStringLiteral("icons/own/16/editor.png"))));
    QIcon::setThemeSearchPaths({folder.path(QStringLiteral("icons"))});
    QIcon::setThemeName(QStringLiteral("own"));
    for (const char *name : {"editor", "editor.png"}) {
        folder.writeApplication(QStringLiteral("sub/edit.desktop"), QByteArray("Icon=") + name + "\n");
        EXPECT_EQ(applications.icon(file).pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::blue))
            << name;
    }
}

TEST_F(LinuxApplicationsTest, NoFileNoIcon) {
    EXPECT_TRUE(applications.icon(folder.path(QStringLiteral("none.desktop"))).isNull());
}

TEST_F(LinuxApplicationsTest, TheFolderOfApplicationsExists) {
    EXPECT_EQ(applications.folder(), folder.path());
    EXPECT_EQ(applications.fileType(), QStringLiteral("desktop"));
    DesktopEntries nowhere({folder.path(QStringLiteral("none"))});
    EXPECT_EQ(LinuxApplications(nowhere).folder(), QDir::homePath());
}

} // namespace
} // namespace barquell::test
