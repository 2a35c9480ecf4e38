#include "platform/linux/desktop/LinuxUrlOpener.h"

#include <gmock/gmock.h>

namespace barquell::test {
namespace {

class LinuxUrlOpenerTest : public testing::Test {
protected:
    bool open(const char *url) { return opener(QUrl(QString::fromLatin1(url))); }

    int shown = 0;
    bool starts = true;
    QStringList launched;
    LinuxUrlOpener opener{[this] { ++shown; },
                          [this](const QString &program, const QStringList &arguments) {
                              launched.append(program + QLatin1Char(' ') + arguments.join(QLatin1Char(' ')));
                              return starts;
                          }};
};

TEST_F(LinuxUrlOpenerTest, ThePrivacySettingsAreOurOwnWindow) {
    EXPECT_TRUE(open("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
    EXPECT_EQ(shown, 1);
    EXPECT_TRUE(launched.isEmpty());
    EXPECT_FALSE(LinuxUrlOpener({})(QUrl(QStringLiteral("x-apple.systempreferences:any"))));
}

TEST_F(LinuxUrlOpenerTest, TheStoreIsTheProjectsPage) {
    EXPECT_TRUE(open("macappstore://apps.apple.com/app/id1?action=write-review"));
    EXPECT_EQ(launched, QStringList(QStringLiteral("xdg-open https://vexolith.com/barquell")));
}

TEST_F(LinuxUrlOpenerTest, AnythingElseIsTheDesktops) {
    EXPECT_TRUE(open("https://example.com/a b?c=%20d"));
    EXPECT_EQ(launched, QStringList(QStringLiteral("xdg-open https://example.com/a%20b?c=%20d")));
    starts = false;
    EXPECT_FALSE(open("https://example.com"));
}

TEST_F(LinuxUrlOpenerTest, WhatIsNoAddressIsNotOpened) {
    for (const char *wrong : {"", "--help", "/etc/passwd", "http://[", "words"}) {
        EXPECT_FALSE(open(wrong)) << wrong;
    }
    EXPECT_TRUE(launched.isEmpty());
}

} // namespace
} // namespace barquell::test
