#include "platform/linux/desktop/AutostartLoginItem.h"
#include "desktop/DesktopFolder.h"
#include "platform/linux/desktop/DesktopGroup.h"

#include <QFileInfo>

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

using Kind = LoginItemState::Kind;

const QString kHelper = QStringLiteral("com.vexolith.barquell.launcher");
const QString kFile = QStringLiteral("autostart/com.vexolith.barquell.launcher.desktop");

class AutostartLoginItemTest : public testing::Test {
protected:
    Kind kind() const { return item.state(kHelper).kind; }
    std::optional<bool> value() const { return item.state(kHelper).value; }

    QByteArray written() const {
        QFile file(user.path(kFile));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    DesktopFolder user;
    DesktopFolder system;
    AutostartLoginItem item{
        QStringLiteral("/opt/100% \"x\"/$bar\\quell"),
        {user.path(QStringLiteral("autostart")), system.path(QStringLiteral("autostart"))}};
};

TEST_F(AutostartLoginItemTest, WithoutAnEntryItIsOff) {
    EXPECT_EQ(kind(), Kind::Off);
    EXPECT_TRUE(item.setEnabled(kHelper, false));
    EXPECT_FALSE(QFileInfo::exists(user.path(kFile)));
}

TEST_F(AutostartLoginItemTest, EnabledItStartsTheProgramAsTheHelperWould) {
    EXPECT_TRUE(item.setEnabled(kHelper, true));
    EXPECT_EQ(kind(), Kind::Found);
    EXPECT_EQ(value(), true);
    const DesktopGroup group(written());
    EXPECT_EQ(group.text("Type"), QStringLiteral("Application"));
    EXPECT_EQ(group.text("Exec"),
              QStringLiteral("env FromLoginItem=1 \"/opt/100%% \\\"x\\\"/\\$bar\\\\quell\""));
    EXPECT_TRUE(item.setEnabled(kHelper, true));
    EXPECT_TRUE(item.setEnabled(kHelper, false));
    EXPECT_EQ(kind(), Kind::Off);
    EXPECT_FALSE(QFileInfo::exists(user.path(kFile)));
}

TEST_F(AutostartLoginItemTest, HiddenIsOff) {
    user.write(kFile, "[Desktop Entry]\nType=Application\nExec=x\nHidden=true\n");
    EXPECT_EQ(kind(), Kind::Off);
    EXPECT_TRUE(item.setEnabled(kHelper, true));
    EXPECT_EQ(kind(), Kind::Found);
}

TEST_F(AutostartLoginItemTest, SwitchedOffByADesktopIsFoundFalse) {
    user.write(kFile, "[Desktop Entry]\nType=Application\nExec=x\nX-GNOME-Autostart-enabled=false\n");
    EXPECT_EQ(kind(), Kind::Found);
    EXPECT_EQ(value(), false);
    user.write(kFile, "[Desktop Entry]\nType=Application\nExec=x\n");
    EXPECT_EQ(value(), true);
}

TEST_F(AutostartLoginItemTest, TheCaseOfTheIdentifierDoesNotCount) {
    user.write(QStringLiteral("autostart/COM.Vexolith.Barquell.Launcher.desktop"),
               "[Desktop Entry]\nType=Application\nExec=x\n");
    EXPECT_EQ(kind(), Kind::Found);
    EXPECT_TRUE(item.setEnabled(kHelper, false));
    EXPECT_EQ(kind(), Kind::Off);
}

TEST_F(AutostartLoginItemTest, TheSystemsEntryIsCoveredAndNotTouched) {
    system.write(kFile, "[Desktop Entry]\nType=Application\nExec=x\n");
    EXPECT_EQ(kind(), Kind::Found);
    EXPECT_TRUE(item.setEnabled(kHelper, false));
    EXPECT_EQ(kind(), Kind::Off);
    EXPECT_TRUE(QFileInfo::exists(system.path(kFile)));
    EXPECT_TRUE(item.setEnabled(kHelper, true));
    EXPECT_EQ(kind(), Kind::Found);
}

TEST_F(AutostartLoginItemTest, WhatIsNoEntryIsOff) {
    for (const QByteArray &bytes :
         {QByteArray(), QByteArray("\xff\xfe\0Exec=", 8), QByteArray(1 << 20, 'x')}) {
        user.write(kFile, bytes);
        EXPECT_EQ(kind(), Kind::Off);
    }
}

TEST_F(AutostartLoginItemTest, ARefusalIsFalse) {
    user.write(QStringLiteral("autostart"), "a file where the folder should be");
    EXPECT_FALSE(item.setEnabled(kHelper, true));
    EXPECT_EQ(kind(), Kind::Off);
}

TEST_F(AutostartLoginItemTest, TheStandardFolders) {
    qputenv("XDG_CONFIG_HOME", "/c");
    qputenv("XDG_CONFIG_DIRS", "/x:/y/");
    EXPECT_EQ(AutostartLoginItem::standardFolders(),
              QStringList({QStringLiteral("/c/autostart"), QStringLiteral("/x/autostart"),
                           QStringLiteral("/y/autostart")}));
}

} // namespace
} // namespace barquell::test
